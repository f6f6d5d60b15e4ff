#pragma once

#include "Misc/OutputDevice.h"
#include "UObject/Package.h"
#include "UObject/PropertyConstruction.h"
#include "UObject/UObjectGlobals.h"
#include "UObject/UnrealType.h"

using UECodeGen_Private::EPropertyGenKind;

/** Collects what a text's reader complains about. */
class FErrorText : public FOutputDevice
{
public:
	void Serialize(const TCHAR* Message, ELogVerbosity::Type Verbosity, const FName& Category) override
	{
		Text += FString(Message) + TEXT("\n");
	}

	FString Text;
};

/** One value of a property made for a test. */
class FTestValue
{
public:
	explicit FTestValue(const FPropertyDescription& Description);
	~FTestValue();
	FTestValue(const FTestValue&) = delete;
	FTestValue& operator=(const FTestValue&) = delete;

	FString Export(int32 PortFlags = PPF_None) const;
	/** Whether the whole text was read. */
	bool Import(const TCHAR* Text, int32 PortFlags = PPF_None);

	TUniquePtr<FProperty> Property;
	void* Memory;
	FErrorText Errors;
};

FPropertyDescription Describe(EPropertyGenKind Kind, const TCHAR* Name = TEXT("Value"), UField* Type = nullptr);
FPropertyDescription DescribeContainer(EPropertyGenKind Kind, const FPropertyDescription& Inner, const TCHAR* Name = TEXT("Value"));
FPropertyDescription DescribeMap(const FPropertyDescription& Key, const FPropertyDescription& Value, const TCHAR* Name = TEXT("Value"));

/** A package of this run alone. */
UPackage* MakeTestPackage(const TCHAR* Name);
/** A struct laid out at run time. */
UScriptStruct* MakeTestStruct(UPackage* Package, const TCHAR* Name, const TArray<FPropertyDescription>& Members);
/** A class below UObject laid out at run time, with its default object. */
UClass* MakeTestClass(UPackage* Package, const TCHAR* Name, const TArray<FPropertyDescription>& Members);
/** EDoor::Open = 0, EDoor::Closed = 1, EDoor::Locked = 4. */
UEnum* GetDoorEnum();
/** Name, Count, Ratio, Note: a string, an int, a double and a name. */
UScriptStruct* GetItemStruct();
