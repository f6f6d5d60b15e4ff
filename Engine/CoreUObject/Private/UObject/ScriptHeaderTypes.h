#pragma once

#include "HeaderParser/TypeIndex.h"
#include "UObject/Class.h"
#include "UObject/PropertyConstruction.h"
#include "UObject/ScriptHeaderLoader.h"

#include <string>
#include <unordered_map>
#include <unordered_set>
#include <vector>

class FDeclaredDefaults;

/** Makes the reflection types of headers that are parsed already: first every type by name, then what is in them. */
class FScriptHeaderTypes
{
public:
	struct FSource
	{
		FString Path;
		HeaderParser::FHeader Header;
	};

	FScriptHeaderTypes(std::vector<FSource>& InSources, UE::CoreUObject::FScriptHeaderReport& InReport);
	void MakeAll();

private:
	/** A declaration with the file that it stands in. */
	template <typename T>
	struct TDeclared
	{
		const T* Declaration;
		const FSource* Source;
	};
	struct FClassInProgress : TDeclared<HeaderParser::FClassDeclaration>
	{
		UClass* Class = nullptr;
		/** Declarations of more members of the class, in other headers. */
		std::vector<TDeclared<HeaderParser::FClassDeclaration>> Continuations;
		bool bExtends = false;
		bool bHasFlags = false;
		bool bDone = false;
	};
	struct FStructInProgress : TDeclared<HeaderParser::FStructDeclaration>
	{
		UScriptStruct* Struct = nullptr;
		bool bDone = false;
	};

	void MakeEnum(const HeaderParser::FEnumDeclaration& Declaration, const FSource& Source);
	void NameStruct(const HeaderParser::FStructDeclaration& Declaration, const FSource& Source);
	void NameClass(const HeaderParser::FClassDeclaration& Declaration, const FSource& Source);
	void NameContinuation(const HeaderParser::FClassDeclaration& Declaration, const FSource& Source);
	void NameDelegate(const HeaderParser::FDelegateDeclaration& Declaration, const FSource& Source);
	void CompleteStruct(FStructInProgress& Struct);
	/** Gives the class its flags, before any member is made: they tell whether a reference to the class is one to a part. */
	void SetClassFlags(FClassInProgress& Class);
	void CompleteClass(FClassInProgress& Class);
	void ExtendClass(FClassInProgress& Class);
	void AddInterfaces(FClassInProgress& Class);
	void AddFunctions(FClassInProgress& Class);
	void AddFunctions(UClass* Class, const std::vector<HeaderParser::FFunctionDeclaration>& Functions, const FSource& Source);
	/** Of the declaration and of each continuation, in this order, what it added. */
	TArray<TArray<FProperty*>> AddClassProperties(FClassInProgress& Class);
	/** Initial values of what AddClassProperties added. The class is linked. */
	void ReadClassDefaults(FClassInProgress& Class, const TArray<TArray<FProperty*>>& Added);
	void MakeFunction(UFunction* Function, const HeaderParser::FFunctionDeclaration& Declaration, const FSource& Source);
	/** Makes the properties that the struct does not have. */
	TArray<FProperty*> AddProperties(
		UStruct* Struct, const std::vector<HeaderParser::FPropertyDeclaration>& Properties, const FSource& Source);
	/** Initial values of members just added, in the order of their declarations. The struct is linked. */
	void ReadDefaults(FDeclaredDefaults& Defaults, const TArray<FProperty*>& Added,
		const std::vector<HeaderParser::FPropertyDeclaration>& Declarations, const FSource& Source);
	void ReadDefault(FDeclaredDefaults& Defaults, const FProperty& Property, const std::string& Text, const FSource& Source,
		const HeaderParser::FPosition& Position);
	bool Describe(const HeaderParser::FTypeReference& Type, FPropertyDescription& Out, const FSource& Source,
		const HeaderParser::FPosition& Position);
	/** What a struct's, an enum's or a delegate's name means as a member's type. */
	struct FNamedType
	{
		UECodeGen_Private::EPropertyGenKind Kind = UECodeGen_Private::EPropertyGenKind::Struct;
		UField* Type = nullptr;
		UECodeGen_Private::EPropertyGenKind UnderlyingKind = UECodeGen_Private::EPropertyGenKind::Byte;
	};
	bool DescribeNamed(const HeaderParser::FTypeReference& Type, FPropertyDescription& Out);
	bool FindNamed(const std::string& Name, FNamedType& Out);

	UPackage* GetPackage(const FSource& Source) const;
	UClass* FindClass(const std::string& CppName);
	UScriptStruct* FindStruct(const std::string& CppName);
	UEnum* FindEnum(const std::string& CppName);
	UField* FindNative(UClass* TypeClass, const std::string& Name);
	void AddError(const FSource& Source, const HeaderParser::FPosition& Position, const FString& Message);

	std::vector<FSource>& Sources;
	UE::CoreUObject::FScriptHeaderReport& Report;
	std::unordered_map<std::string, FClassInProgress> Classes;
	std::unordered_map<std::string, FStructInProgress> Structs;
	std::unordered_map<std::string, UEnum*> Enums;
	std::unordered_map<std::string, const HeaderParser::FEnumDeclaration*> EnumDeclarations;
	std::unordered_map<std::string, FNamedType> NamedTypes;
	std::unordered_map<std::string, TDeclared<HeaderParser::FDelegateDeclaration>> DelegateDeclarations;
	std::unordered_map<std::string, UFunction*> Delegates;
	std::unordered_map<std::string, UField*> NativeTypes;
	std::vector<std::string> ClassOrder;
	std::vector<std::string> StructOrder;
	/** A member by value of one of these would make the struct endless. */
	TSet<const UField*> StructsBeingLaidOut;
};
