#pragma once

#include "CoreMinimal.h"

class FJsonObject;
class FJsonValue;
class FLinkerLoad;
class FPackageValues;

/** Reads the definitions of classes, functions, structs, enums and old property objects as JSON, without making any of them. */
class FTypeDefinitionReader
{
public:
	explicit FTypeDefinitionReader(FPackageValues& InValues);

	/** Whether objects of the class define a type. */
	static bool IsDefinition(FName ClassName);
	/**
	 * The definition that begins at Start, behind what every object has. False when it is damaged; OutEnd is where reading
	 * ended: what follows, up to End, only the class itself can read.
	 */
	bool Read(FName ClassName, int64 Start, int64 End, FJsonObject& OutDefinition, int64& OutEnd);

private:
	using FValue = TSharedPtr<FJsonValue>;

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

	FPackageValues& Values;
	FLinkerLoad& Linker;
	int32 Depth = 0;
};
