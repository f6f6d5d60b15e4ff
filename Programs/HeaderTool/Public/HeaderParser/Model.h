#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

/**
 * What a reflected header says, as plain data. Names stand as declared, with their C++ prefix ("AActor", "FHitResult");
 * flag words are those of HeaderParser/Flags.h. All text is the header's UTF-8.
 */
namespace HeaderParser
{
/** Line and column count from 1; a column is one code point. */
struct FPosition
{
	int32_t Line = 0;
	int32_t Column = 0;
};

struct FDiagnostic
{
	FPosition Position;
	/** "expected X, found 'Y'" */
	std::string Message;
};

/** Keys and values in the order of declaration. A key occurs once. */
class FMetaData
{
public:
	/** Replaces the value of a key that is there already. Keys compare without regard to ASCII case. */
	void Set(std::string_view Key, std::string_view Value);
	/** Null when the key is missing. */
	[[nodiscard]] const std::string* Find(std::string_view Key) const;
	[[nodiscard]] bool Has(std::string_view Key) const { return Find(Key) != nullptr; }
	[[nodiscard]] const std::vector<std::pair<std::string, std::string>>& Pairs() const { return Entries; }

private:
	std::vector<std::pair<std::string, std::string>> Entries;
};

/** One word of a macro's argument list: `Transient`, `Category = "A|B"`, `HideCategories = (A, B)`. */
struct FSpecifier
{
	std::string Name;
	std::vector<std::string> Values;
	FPosition Position;
};

struct FSpecifierList
{
	std::vector<FSpecifier> Specifiers;
	FMetaData MetaData;

	/** Null when the specifier is missing. Names compare without regard to ASCII case. */
	[[nodiscard]] const FSpecifier* Find(std::string_view Name) const;
	[[nodiscard]] bool Has(std::string_view Name) const { return Find(Name) != nullptr; }
};

enum class ETypeKind : uint8_t
{
	Void,
	Bool,
	Byte,
	Int8,
	Int16,
	Int,
	Int64,
	UInt16,
	UInt32,
	UInt64,
	Float,
	Double,
	Name,
	String,
	Text,
	/** `UFoo*` and `TObjectPtr<UFoo>`; Name is the class. */
	Object,
	WeakObject,
	LazyObject,
	SoftObject,
	/** `TSubclassOf<UFoo>` and `UClass*`; Name is the meta class, "UObject" for `UClass*`. */
	Class,
	SoftClass,
	/** `TScriptInterface<IFoo>`; Name is "IFoo". */
	Interface,
	/** `TEnumAsByte<EFoo>`; Name is "EFoo" for `EFoo::Type` too. */
	EnumAsByte,
	/** A struct, an enum or a delegate by its name; which of them it is stands in the header that declares it: see FTypeIndex. */
	Named,
	/** Element, or key and value, in Arguments. */
	Array,
	Set,
	Map,
	Optional,
	/** `TFieldPath<FProperty>`; Name is the field class. */
	FieldPath
};

struct FTypeReference
{
	ETypeKind Kind = ETypeKind::Void;
	/** See ETypeKind; empty for kinds that have no name. */
	std::string Name;
	std::vector<FTypeReference> Arguments;
	/** C++ spelling without outer `const` and `&`: "TArray<TObjectPtr<UFoo>>". */
	std::string CppText;
	bool bConst = false;
	bool bReference = false;
	/** Object or Class kinds held in a wrapper (TObjectPtr, TSubclassOf) instead of a raw pointer. */
	bool bWrapper = false;
};

enum class EAccess : uint8_t
{
	Public,
	Protected,
	Private
};

/** A member, a parameter or a return value. */
struct FPropertyDeclaration
{
	/** Reflected name: `X_DEPRECATED` is "X". A return value is "ReturnValue". */
	std::string Name;
	std::string CppName;
	FTypeReference Type;
	/** EPropertyFlags that follow from the declaration; those that follow from the type's own traits are the host's to add. */
	uint64_t Flags = 0;
	/** Text between the brackets of a static array, or empty. */
	std::string ArrayDim;
	/** The value of ArrayDim where it is a number. */
	std::optional<int64_t> ArrayDimValue;
	/** Bits of a bit-field, 0 for anything else. */
	int32_t BitWidth = 0;
	EAccess Access = EAccess::Public;
	std::string RepNotifyFunction;
	FSpecifierList Specifiers;
	FMetaData MetaData;
	/** Initial value of a member, or default of a parameter, as C++ text; empty when there is none. */
	std::string DefaultText;
	FPosition Position;
};

struct FFunctionDeclaration
{
	std::string Name;
	/** EFunctionFlags. */
	uint32_t Flags = 0;
	std::vector<FPropertyDeclaration> Parameters;
	std::optional<FPropertyDeclaration> ReturnValue;
	bool bVirtual = false;
	bool bConst = false;
	bool bOverride = false;
	/** The class itself declares `Name_Implementation`. */
	bool bDeclaresImplementation = false;
	FSpecifierList Specifiers;
	/** Has "CPP_Default_X" of each parameter with a default, in the engine's import form. */
	FMetaData MetaData;
	FPosition Position;
};

struct FDelegateDeclaration
{
	/** "FOnUsed". */
	std::string Name;
	/** Named "OnUsed__DelegateSignature". */
	FFunctionDeclaration Signature;
	bool bMulticast = false;
	bool bSparse = false;
	/** Class that the declaration stands in, or empty. */
	std::string OuterClass;
	FPosition Position;
};

enum class EEnumForm : uint8_t
{
	Plain,
	/** `namespace EFoo { enum Type { ... }; }` */
	Namespaced,
	EnumClass
};

struct FEnumeratorDeclaration
{
	/** As declared: "Open". */
	std::string Name;
	/** Unknown where the value is more than numbers and earlier enumerators; so are those that count on from it. */
	std::optional<int64_t> Value;
	FMetaData MetaData;
	FPosition Position;
};

struct FEnumDeclaration
{
	std::string Name;
	EEnumForm Form = EEnumForm::Plain;
	/** "Type" of the namespaced form; empty otherwise. */
	std::string InnerName;
	/** Text after the colon, or empty. */
	std::string UnderlyingType;
	bool bFlags = false;
	std::vector<FEnumeratorDeclaration> Enumerators;
	FSpecifierList Specifiers;
	FMetaData MetaData;
	FPosition Position;

	/** "EDoor::Open" for an enum class or a namespaced enum, "DOOR_Open" for a plain one. */
	[[nodiscard]] std::string QualifiedName(const FEnumeratorDeclaration& Enumerator) const;
	/** Bytes that a property of the enum takes: those of the type after the colon, else 1, as TEnumAsByte keeps plain enums. */
	[[nodiscard]] int32_t UnderlyingSize() const;
};

struct FStructDeclaration
{
	std::string Name;
	/** Empty when there is none. */
	std::string Super;
	/** EStructFlags. */
	uint32_t Flags = 0;
	bool bNoExport = false;
	/** Line of GENERATED_BODY, 0 when there is none. */
	int32_t BodyLine = 0;
	std::vector<FPropertyDeclaration> Properties;
	FSpecifierList Specifiers;
	FMetaData MetaData;
	FPosition Position;
};

/** What the parser saw of a class's own constructors. */
struct FConstructorFacts
{
	bool bDefault = false;
	bool bObjectInitializer = false;
	bool bOther = false;
	bool bDestructor = false;
};

/** The I-class of a UINTERFACE. */
struct FInterfaceBody
{
	std::string Name;
	/** "IBase" or empty. */
	std::string Super;
	int32_t BodyLine = 0;
	bool bLegacyBody = false;
	bool bDestructor = false;
	bool bDeclaresGetUObject = false;
};

struct FClassDeclaration
{
	std::string Name;
	/** Empty for UObject alone. */
	std::string Super;
	/** Other bases, "IFoo", in order. */
	std::vector<std::string> Interfaces;
	/** EClassFlags. */
	uint32_t Flags = 0;
	/** "Engine" of `Config=Engine`, or empty. */
	std::string ConfigName;
	/** Class of `Within=` as it is written, which is mostly without the prefix; or empty. */
	std::string Within;
	bool bNoExport = false;
	bool bInterface = false;
	/** `// Extends native` stands before the declaration: functions and properties are added to a class that exists. */
	bool bExtendsNative = false;
	/** `// Continues` stands before the declaration: its members belong to the class of the same name in another header. */
	bool bContinues = false;
	/** From `// Initially: bName = Value` before the declaration: an inherited member and the C++ text of the value that it starts with here. */
	std::optional<std::pair<std::string, std::string>> InheritedDefault;
	bool bDeclaresPureVirtual = false;
	bool bDeclaresAddReferencedObjects = false;
	int32_t BodyLine = 0;
	/** GENERATED_UCLASS_BODY, which declares the constructor and leaves the access public. */
	bool bLegacyBody = false;
	FConstructorFacts Constructors;
	/** Set when bInterface and the I-class was found in the same header. Its functions are in Functions. */
	std::optional<FInterfaceBody> InterfaceBody;
	std::vector<FPropertyDeclaration> Properties;
	std::vector<FFunctionDeclaration> Functions;
	FSpecifierList Specifiers;
	FMetaData MetaData;
	FPosition Position;
};

struct FHeader
{
	/** "/Script/Engine" of `// Package: /Script/Engine`, or empty. */
	std::string Package;
	/** Texts of the `#include` directives that are compiled, without quotes. */
	std::vector<std::string> Includes;
	std::vector<FClassDeclaration> Classes;
	std::vector<FStructDeclaration> Structs;
	std::vector<FEnumDeclaration> Enums;
	std::vector<FDelegateDeclaration> Delegates;
};
}
