#pragma once

#include "CoreMinimal.h"

class FJsonObject;
class FJsonValue;
class FLinkerLoad;

/** Reads the definitions of classes, functions, structs, enums and old property objects as JSON, without making any of them. */
class FTypeDefinitionReader
{
public:
	explicit FTypeDefinitionReader(FLinkerLoad& InLinker)
		: Linker(InLinker)
	{
	}

	/** Whether objects of the class define a type. */
	static bool IsDefinition(FName ClassName);
	/**
	 * The definition that begins at Start, behind an object's tagged properties. False when it is damaged; OutEnd is where reading
	 * ended: what follows, up to End, only the class itself can read.
	 */
	bool Read(FName ClassName, int64 Start, int64 End, FJsonObject& OutDefinition, int64& OutEnd);

private:
	using FValue = TSharedPtr<FJsonValue>;

	void ReadObjectEnd();
	void ReadFieldLink(FJsonObject& Out);
	void ReadStruct(FJsonObject& Out);
	void ReadFunction(FJsonObject& Out);
	void ReadClass(FJsonObject& Out);
	void ReadScriptStruct(FJsonObject& Out);
	void ReadEnum(FJsonObject& Out);
	void ReadPropertyObject(FName Kind, FJsonObject& Out);
	/** A property within its owner's definition. */
	FValue ReadProperty();
	void ReadPropertyType(FName Kind, FJsonObject& Out, bool bWithin);
	void ReadMetaData(FJsonObject& Out);
	void ReadInterfaces(FJsonObject& Out);
	void ReadScript(FJsonObject& Out);
	/** Null for a reference to nothing. */
	FValue ReadReference();
	FString ReadName();
	/** 0, and the archive's error, when what is left could not hold as many. */
	int32 ReadCount(int64 MinEntryBytes);

	FLinkerLoad& Linker;
	int32 Depth = 0;
};
