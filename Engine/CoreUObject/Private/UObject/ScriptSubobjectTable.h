#pragma once

#include "UObject/ScriptHeaderLoader.h"

class FDeclaredDefaults;
class FDeclaredSubobjects;
class UClass;
struct FDeclaredSubobject;

/**
 * Reads the table of the sub-objects that constructors of declared classes make, and gives each class its own. The classes are
 * complete and have no default objects yet. The form of the table stands in ScriptApi/README.md.
 */
class FScriptSubobjectTable
{
public:
	FScriptSubobjectTable(const UE::CoreUObject::FScriptHeaderSource& InSource, UE::CoreUObject::FScriptHeaderReport& InReport);
	void Read();

private:
	struct FRow
	{
		int32 Line = 0;
		UClass* Owner = nullptr;
		TArray<FString> Members;
		FName Name;
		/** Null to leave the sub-object out. */
		const UClass* Class = nullptr;
		bool bOptional = false;
		bool bEditorOnly = false;
		/** "Name = value" */
		TArray<FString> Values;
	};

	bool ReadRow(const FString& Line, FRow& OutRow);
	UClass* FindClass(const FString& CppName, int32 Line);
	void GiveToClass(UClass* Owner, const TArray<const FRow*>& Rows);
	bool Place(const FRow& Row, FDeclaredSubobjects& Subobjects);
	bool AddMembers(const FRow& Row, FDeclaredSubobject& Subobject);
	void AddValues(const FRow& Row, FDeclaredSubobjects& Subobjects);
	bool AddValue(const FString& Name, const FString& Text, FDeclaredSubobjects& Subobjects, FDeclaredSubobject& Subobject,
		FDeclaredDefaults& OutValues);
	bool Refuse(int32 Line, const FString& Message);

	const UE::CoreUObject::FScriptHeaderSource& Source;
	UE::CoreUObject::FScriptHeaderReport& Report;
	TArray<FRow> Rows;
};
