#include "EdGraphSchema_K2.h"

#include "Engine/Blueprint.h"
#include "K2Node_CallFunction.h"
#include "Misc/DefaultValueHelper.h"
#include "Misc/OutputDeviceNull.h"
#include "UObject/Class.h"
#include "UObject/PropertyPortFlags.h"
#include "UObject/SoftObjectPath.h"
#include "UObject/UnrealType.h"

namespace
{
using Schema = UEdGraphSchema_K2;

/** A default to be looked at, with the pin that is to hold it. */
struct FPinDefault
{
	const FEdGraphPinType& Type;
	const FString PinName;
	const FString& Value;
	const UObject* Object;

	const UClass* GetClass() const
	{
		const UClass* const Class = Cast<UClass>(Type.PinSubCategoryObject.Get());
		return Class ? Class->GetAuthoritativeClass() : nullptr;
	}
};

/** Empty when the default is good, else what is wrong with it. */
using FDefaultCheck = FString (*)(const FPinDefault& Default);

FString CheckNothing(const FPinDefault&)
{
	return FString();
}

FString CheckBoolean(const FPinDefault& Default)
{
	const bool bGood = Default.Value.IsEmpty() || Default.Value == TEXT("true") || Default.Value == TEXT("false");
	return bGood ? FString() : FString(TEXT("Boolean pins must be 'true' or 'false'"));
}

FString CheckEnum(const UEnum& Enum, const FString& Value)
{
	const bool bGood = Value.IsEmpty() || (Value != TEXT("(INVALID)") && Enum.GetIndexByNameString(Value) != INDEX_NONE);
	return bGood ? FString() : FString::Printf(TEXT("'%s' is not a valid enumerant of '<%s>'"), *Value, *Enum.GetName());
}

/** False for what is no whole number, or one that no integer holds. */
bool ParseWhole(const FString& Text, int64& OutNumber)
{
	if (!FDefaultValueHelper::ParseInt64(Text, OutNumber))
	{
		return false;
	}
	// What is too large is read as the largest.
	const bool bIsLimit = OutNumber == MAX_int64 || OutNumber == MIN_int64;
	return !bIsLimit || Text.StartsWith(TEXT("0x")) || Text == FString::Printf(TEXT("%lld"), OutNumber);
}

FString CheckByte(const FPinDefault& Default)
{
	if (const UEnum* const Enum = Cast<UEnum>(Default.Type.PinSubCategoryObject.Get()))
	{
		return CheckEnum(*Enum, Default.Value);
	}
	int64 Number = 0;
	if (!Default.Value.IsEmpty() && !ParseWhole(Default.Value, Number))
	{
		return TEXT("Expected a valid unsigned number for a byte property");
	}
	return Number < 0 || Number > MAX_uint8 ? FString(TEXT("Expected a value between 0 and 255 for a byte property")) : FString();
}

FString CheckInt(const FPinDefault& Default)
{
	int64 Number = 0;
	if (!Default.Value.IsEmpty() && !ParseWhole(Default.Value, Number))
	{
		return TEXT("Expected a valid number for an integer property");
	}
	return Number < MIN_int32 || Number > MAX_int32
		? FString(TEXT("Expected a value between -2147483648 and 2147483647 for an integer property"))
		: FString();
}

FString CheckInt64(const FPinDefault& Default)
{
	int64 Number = 0;
	const bool bGood = Default.Value.IsEmpty() || ParseWhole(Default.Value, Number);
	return bGood ? FString() : FString(TEXT("Expected a valid number for an integer64 property"));
}

FString CheckReal(const FPinDefault& Default)
{
	double Number = 0.0;
	if (Default.Value.IsEmpty() || FDefaultValueHelper::ParseDouble(Default.Value, Number))
	{
		return FString();
	}
	return Default.Type.PinSubCategory == Schema::PC_Float ? TEXT("Expected a valid number for a float property")
														   : TEXT("Expected a valid number for a double property");
}

FString CheckName(const FPinDefault& Default)
{
	return Default.Value.Len() < NAME_SIZE
		? FString()
		: FString::Printf(TEXT("A name has fewer than %d characters (specified on pin %s)"), NAME_SIZE, *Default.PinName);
}

FString CheckClass(const FPinDefault& Default)
{
	if (!Default.Value.IsEmpty())
	{
		return FString::Printf(TEXT("String NewDefaultValue '%s' specified on class pin '%s'"), *Default.Value, *Default.PinName);
	}
	const UClass* const Given = Cast<UClass>(Default.Object);
	const UClass* const Wanted = Default.GetClass();
	if (!Default.Object || (Given && (!Wanted || Given->GetAuthoritativeClass()->IsChildOf(Wanted) || Given->ImplementsInterface(Wanted))))
	{
		return FString();
	}
	return Given ? FString::Printf(TEXT("%s isn't a valid subclass of %s (specified on pin %s)"), *Given->GetPathName(), *Wanted->GetName(),
					   *Default.PinName)
				 : FString::Printf(TEXT("Literal on pin %s is not a class."), *Default.PinName);
}

FString CheckObject(const FPinDefault& Default)
{
	if (!Default.Value.IsEmpty())
	{
		return FString::Printf(TEXT("String NewDefaultValue '%s' specified on object pin '%s'"), *Default.Value, *Default.PinName);
	}
	const UClass* const Wanted = Default.GetClass();
	const bool bFits = !Default.Object || !Wanted || Default.Object->IsA(Wanted) || Default.Object->GetClass()->ImplementsInterface(Wanted);
	return bFits ? FString()
				 : FString::Printf(
					   TEXT("%s isn't a %s (specified on pin %s)"), *Default.Object->GetPathName(), *Wanted->GetName(), *Default.PinName);
}

/** The asset need not be loaded; when it is, it must be of the pin's class. */
FString CheckSoftReference(const FPinDefault& Default)
{
	if (Default.Value.IsEmpty() || Default.Value == TEXT("None"))
	{
		return FString();
	}
	const FSoftObjectPath Path(Default.Value);
	if (!Path.IsValid() || !Path.ToString().StartsWith(TEXT("/")))
	{
		return FString::Printf(TEXT("'%s' is no path of an asset (specified on pin %s)"), *Default.Value, *Default.PinName);
	}
	const UObject* const Loaded = Path.ResolveObject();
	const FPinDefault Resolved{Default.Type, Default.PinName, FString(), Loaded};
	return Default.Type.PinCategory == Schema::PC_SoftClass ? CheckClass(Resolved) : CheckObject(Resolved);
}

/** Structs that have a form of their own beside the usual one: numbers alone, in the order of their members, as a user types them. */
struct FNumberForm
{
	const TCHAR* Struct;
	int32 NumNumbers;
};

bool IsNumberForm(const UScriptStruct& Struct, const FString& Value)
{
	static const FNumberForm Forms[] = {
		{TEXT("Vector"), 3}, {TEXT("Vector3f"), 3}, {TEXT("Rotator"), 3}, {TEXT("Rotator3f"), 3}, {TEXT("Vector2D"), 2}};
	for (const FNumberForm& Form : Forms)
	{
		if (Struct.GetFName() != FName(Form.Struct))
		{
			continue;
		}
		TArray<FString> Numbers;
		Value.ParseIntoArray(Numbers, TEXT(","), false);
		double Number = 0.0;
		return Numbers.Num() == Form.NumNumbers && !Numbers.ContainsByPredicate([&Number](const FString& Text)
													   { return !FDefaultValueHelper::ParseDouble(Text.TrimStartAndEnd(), Number); });
	}
	return false;
}

bool CanImport(const UScriptStruct& Struct, const FString& Value)
{
	TArray<uint8> Memory;
	Memory.SetNumZeroed(Struct.GetStructureSize() + Struct.GetMinAlignment());
	uint8* const Instance = Align(Memory.GetData(), Struct.GetMinAlignment());
	Struct.InitializeStruct(Instance);
	FOutputDeviceNull Errors;
	const TCHAR* End = Struct.ImportText(*Value, Instance, nullptr, PPF_SerializedAsImportText, &Errors, Struct.GetName());
	Struct.DestroyStruct(Instance);
	while (End && FChar::IsWhitespace(*End))
	{
		++End;
	}
	return End && !*End;
}

FString CheckStruct(const FPinDefault& Default)
{
	const UScriptStruct* const Struct = Cast<UScriptStruct>(Default.Type.PinSubCategoryObject.Get());
	if (!Struct)
	{
		return Default.Value.IsEmpty() ? FString() : FString::Printf(TEXT("No struct specified for pin '%s'"), *Default.PinName);
	}
	if (Default.Value.IsEmpty() || IsNumberForm(*Struct, Default.Value) || CanImport(*Struct, Default.Value))
	{
		return FString();
	}
	static const TSet<FName> WellKnown = {TEXT("Vector"), TEXT("Rotator"), TEXT("Transform"), TEXT("LinearColor")};
	if (WellKnown.Contains(Struct->GetFName()))
	{
		return FString::Printf(TEXT("Invalid value for an F%s"), *Struct->GetName());
	}
	return FString::Printf(TEXT("Invalid value for %s: '%s'"), *Schema::TypeToText(Default.Type).ToString(), *Default.Value);
}

FString CheckTypeWithoutDefaults(const FPinDefault& Default)
{
	const bool bHasNone = Default.Value.IsEmpty() && !Default.Object;
	return bHasNone
		? FString()
		: FString::Printf(TEXT("Unsupported type %s on pin %s"), *Schema::TypeToText(Default.Type).ToString(), *Default.PinName);
}

const TMap<FName, FDefaultCheck>& GetChecks()
{
	static const TMap<FName, FDefaultCheck> Checks = {
		{Schema::PC_Boolean, &CheckBoolean},
		{Schema::PC_Byte, &CheckByte},
		{Schema::PC_Enum, &CheckByte},
		{Schema::PC_Int, &CheckInt},
		{Schema::PC_Int64, &CheckInt64},
		{Schema::PC_Real, &CheckReal},
		{Schema::PC_Name, &CheckName},
		{Schema::PC_String, &CheckNothing},
		{Schema::PC_Text, &CheckNothing},
		{Schema::PC_FieldPath, &CheckNothing},
		{Schema::PC_Class, &CheckClass},
		{Schema::PC_Object, &CheckObject},
		{Schema::PC_Interface, &CheckObject},
		{Schema::PC_SoftObject, &CheckSoftReference},
		{Schema::PC_SoftClass, &CheckSoftReference},
		{Schema::PC_Struct, &CheckStruct},
	};
	return Checks;
}

/** What a call demands of a container that nothing is linked to; empty for a pin that may be left alone. */
FString CheckContainerOfCall(const UEdGraphPin& Pin)
{
	if (!Pin.PinType.IsContainer() || !Cast<UK2Node_CallFunction>(Pin.GetOwningNodeUnchecked()) || Schema::IsAutoCreateRefTerm(&Pin))
	{
		return FString();
	}
	const TCHAR* const Kind = Pin.PinType.IsArray() ? TEXT("Array") : Pin.PinType.IsSet() ? TEXT("Set")
																						  : TEXT("Map");
	return FString::Printf(TEXT("%s inputs (like '%s') must have an input wired into them (try connecting a Make%s node)."), Kind,
		*Pin.PinName.ToString(), Kind);
}

/** Metadata of a class parameter narrows what its type allows. */
FString CheckParameter(const UEdGraphPin& Pin, const UObject* Object)
{
	const UClass* const Class = Cast<UClass>(Object);
	const UK2Node_CallFunction* const Call = Class ? Cast<UK2Node_CallFunction>(Pin.GetOwningNodeUnchecked()) : nullptr;
	const UFunction* const Function = Call ? Call->GetTargetFunction() : nullptr;
	const FProperty* const Parameter = Function ? FindFProperty<FProperty>(Function, Pin.PinName) : nullptr;
	if (!Parameter)
	{
		return FString();
	}
	const FString* const MetaClassName = Parameter->FindMetaData(TEXT("MetaClass"));
	const UClass* const MetaClass = MetaClassName ? FindFirstObject<UClass>(**MetaClassName, EFindFirstObjectOptions::NativeFirst)
												  : nullptr;
	if (MetaClass && !Class->IsChildOf(MetaClass))
	{
		return FString::Printf(TEXT("%s isn't a valid subclass of %s (specified on pin %s)"), *Class->GetPathName(), *MetaClass->GetName(),
			*Pin.PinName.ToString());
	}
	const bool bNeedsObjects = Parameter->HasMetaData(TEXT("AllowAbstract")) && !Parameter->GetBoolMetaData(TEXT("AllowAbstract"));
	return bNeedsObjects && Class->HasAnyClassFlags(CLASS_Abstract)
		? FString::Printf(TEXT("%s is abstract (specified on pin %s)"), *Class->GetPathName(), *Pin.PinName.ToString())
		: FString();
}
}

FString UEdGraphSchema_K2::IsCurrentPinDefaultValid(const UEdGraphPin* Pin) const
{
	return IsPinDefaultValid(Pin, Pin->DefaultValue, Pin->DefaultObject, Pin->DefaultTextValue);
}

FString UEdGraphSchema_K2::IsPinDefaultValid(
	const UEdGraphPin* Pin, const FString& NewDefaultValue, TObjectPtr<UObject> NewDefaultObject, const FText& InNewDefaultText) const
{
	if (Pin->bDefaultValueIsIgnored)
	{
		return FString();
	}
	FString Message = CheckContainerOfCall(*Pin);
	if (Message.IsEmpty() &&
		DefaultValueSimpleValidation(Pin->PinType, Pin->PinName, NewDefaultValue, NewDefaultObject, InNewDefaultText, &Message))
	{
		Message = CheckParameter(*Pin, NewDefaultObject);
	}
	return Message;
}

bool UEdGraphSchema_K2::DefaultValueSimpleValidation(const FEdGraphPinType& PinType, const FName PinName, const FString& NewDefaultValue,
	TObjectPtr<UObject> NewDefaultObject, const FText& InText, FString* OutMsg) const
{
	const FPinDefault Default{PinType, PinName.ToString(), NewDefaultValue, NewDefaultObject};
	FString Message;
	if (PinType.IsContainer())
	{
		// Elements of an autogenerated default are checked where it is read.
		const bool bIsLiteral = NewDefaultObject || !InText.IsEmpty() ||
			(!NewDefaultValue.IsEmpty() && !NewDefaultValue.StartsWith(TEXT("(")));
		Message = bIsLiteral ? FString::Printf(TEXT("Literal values are not allowed for container pin %s"), *Default.PinName) : FString();
	}
	else
	{
		const FDefaultCheck* const Check = GetChecks().Find(PinType.PinCategory);
		Message = Check ? (*Check)(Default) : CheckTypeWithoutDefaults(Default);
	}
	if (OutMsg)
	{
		*OutMsg = Message;
	}
	return Message.IsEmpty();
}
