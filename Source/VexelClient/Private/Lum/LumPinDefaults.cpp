#include "Lum/LumHelper.h"

#include "Lum/LumErrors.h"

#include "Algo/AllOf.h"
#include "Containers/ArrayView.h"
#include "EdGraph/EdGraphNode.h"
#include "EdGraph/EdGraphSchema.h"
#include "EdGraphSchema_K2.h"
#include "K2Node_EditablePinBase.h"

namespace
{
const TCHAR* const SelfDefault = TEXT("self");

/** A struct whose pins have their default as numbers between commas. */
struct FComponentStruct
{
	FName Name;
	/** Names by which the engine's own text form may tell the components. */
	TArray<const TCHAR*> Components;
	bool bIntegers;
	/** Whether the editor keeps the components with their names, "(X=1.0,Y=2.0)", rather than as "1.0,2.0,3.0". */
	bool bNamed;
	const TCHAR* NameInError;
};

/** Null for a type that has its default in another form. */
const FComponentStruct* FindComponentStruct(const FEdGraphPinType& Type)
{
	static const FComponentStruct Structs[] = {
		{TEXT("Vector"), {TEXT("X"), TEXT("Y"), TEXT("Z")}, false, false, TEXT("vector")},
		{TEXT("Vector2D"), {TEXT("X"), TEXT("Y")}, false, true, TEXT("vector2d")},
		{TEXT("Vector4"), {TEXT("X"), TEXT("Y"), TEXT("Z"), TEXT("W")}, false, true, TEXT("vector4")},
		{TEXT("Rotator"), {TEXT("Pitch"), TEXT("Yaw"), TEXT("Roll")}, false, false, TEXT("rotator")},
		{TEXT("LinearColor"), {TEXT("R"), TEXT("G"), TEXT("B"), TEXT("A")}, false, true, TEXT("linear color")},
		{TEXT("Color"), {TEXT("R"), TEXT("G"), TEXT("B"), TEXT("A")}, true, true, TEXT("color")},
	};
	const UObject* const Object = Type.PinCategory == UEdGraphSchema_K2::PC_Struct ? Type.PinSubCategoryObject.Get() : nullptr;
	for (const FComponentStruct& Struct : Structs)
	{
		if (Object && Object->GetFName() == Struct.Name)
		{
			return &Struct;
		}
	}
	return nullptr;
}

FString FormatComponent(const FComponentStruct& Struct, double Number)
{
	return Struct.bIntegers ? FString::Printf(TEXT("%d"), static_cast<int32>(Number)) : FString::Printf(TEXT("%f"), Number);
}

/** Whether the text is a number that the component can be, and nothing else. */
bool ParseComponent(const FComponentStruct& Struct, const FString& Text, double& OutNumber)
{
	const bool bNumber = Struct.bIntegers ? !Text.IsEmpty() && Algo::AllOf(Text, &FChar::IsDigit) : Text.IsNumeric();
	OutNumber = bNumber ? FCString::Atod(*Text) : 0.0;
	return bNumber && FMath::IsFinite(OutNumber) && (!Struct.bIntegers || OutNumber <= MAX_uint8);
}

/** Reads "1,2,3" as well as "(X=1,Y=2,Z=3)", the latter in any order. */
bool ParseComponents(const FComponentStruct& Struct, const FString& Text, TArray<double>& OutNumbers)
{
	FString List = Text.TrimStartAndEnd();
	List.RemoveFromStart(TEXT("("));
	List.RemoveFromEnd(TEXT(")"));
	TArray<FString> Parts;
	List.ParseIntoArray(Parts, TEXT(","), false);
	if (Parts.Num() != Struct.Components.Num())
	{
		return false;
	}
	OutNumbers.SetNumZeroed(Parts.Num());
	for (int32 Index = 0; Index < Parts.Num(); ++Index)
	{
		FString Name;
		FString Number = Parts[Index];
		int32 Place = Index;
		if (Parts[Index].Split(TEXT("="), &Name, &Number))
		{
			Name.TrimStartAndEndInline();
			Place = Struct.Components.IndexOfByPredicate([&Name](const TCHAR* Component)
				{ return Name == Component; });
		}
		Number.TrimStartAndEndInline();
		if (Place == INDEX_NONE || !ParseComponent(Struct, Number, OutNumbers[Place]))
		{
			return false;
		}
	}
	return true;
}

TVexelExpected<FString> ExportComponents(const FComponentStruct& Struct, const FString& Text)
{
	TArray<double> Numbers;
	if (!ParseComponents(Struct, Text, Numbers))
	{
		return VEXEL_ERROR(FLumError_Export, "Failed to parse %s: %s", Struct.NameInError, *Text);
	}
	return FString::JoinBy(Numbers, TEXT(", "),
		[&Struct](double Number)
		{ return FormatComponent(Struct, Number); });
}

/** The form in which the editor keeps the default: numbers alone, or named ones. */
TVexelExpected<FString> ImportComponents(const FComponentStruct& Struct, const FString& Text)
{
	TArray<double> Numbers;
	if (!ParseComponents(Struct, Text, Numbers))
	{
		return VEXEL_ERROR(FLumError_Import, "Failed to parse %s: %s", Struct.NameInError, *Text);
	}
	TArray<FString> Parts;
	for (int32 Index = 0; Index < Numbers.Num(); ++Index)
	{
		const FString Number = FormatComponent(Struct, Numbers[Index]);
		Parts.Add(Struct.bNamed ? FString::Printf(TEXT("%s=%s"), Struct.Components[Index], *Number) : Number);
	}
	const FString List = FString::Join(Parts, TEXT(","));
	return Struct.bNamed ? FString::Printf(TEXT("(%s)"), *List) : List;
}

bool IsObjectCategory(FName Category)
{
	const FName Categories[] = {UEdGraphSchema_K2::PC_Object, UEdGraphSchema_K2::PC_Class, UEdGraphSchema_K2::PC_Interface,
		UEdGraphSchema_K2::PC_SoftObject, UEdGraphSchema_K2::PC_SoftClass};
	return MakeArrayView(Categories).Contains(Category);
}

/** The schema by whose rules the pin's default is read or written. */
template <typename ErrorType>
TVexelExpected<const UEdGraphSchema*> GetSchemaForDefault(const UEdGraphPin& Pin)
{
	const UEdGraphNode* const Node = Pin.GetOwningNodeUnchecked();
	const UEdGraphSchema* const Schema = Node ? Node->GetSchema() : nullptr;
	if (!Schema)
	{
		return VEXEL_ERROR(ErrorType, "Pin schema invalid");
	}
	const FName Category = Pin.PinType.PinCategory;
	if (Category == UEdGraphSchema_K2::PC_Exec || Schema->IsDelegateCategory(Category))
	{
		return VEXEL_ERROR(ErrorType, "Pin does not support default values");
	}
	return Schema;
}

TVexelExpected<FString> ExportDefault(const UEdGraphPin& Pin)
{
	VEXEL_TRY(const UEdGraphSchema* const Schema, GetSchemaForDefault<FLumError_Export>(Pin));
	if (Schema->IsSelfPin(Pin))
	{
		return FString(SelfDefault);
	}
	if (Pin.PinType.IsContainer())
	{
		return Pin.DefaultValue;
	}
	if (IsObjectCategory(Pin.PinType.PinCategory))
	{
		return Pin.DefaultObject ? FLumHelper::MakeReferenceString(Pin.DefaultObject) : FLumHelper::MakeReferenceString(Pin.DefaultValue);
	}
	const FComponentStruct* const Struct = FindComponentStruct(Pin.PinType);
	if (Struct && !Pin.DefaultValue.IsEmpty())
	{
		return ExportComponents(*Struct, Pin.DefaultValue);
	}
	return Pin.GetDefaultAsString();
}

/** The class that an object pin's default must be of; null where any will do. */
const UClass* GetReferencedClass(const FEdGraphPinType& Type)
{
	const bool bHoldsClass = Type.PinCategory == UEdGraphSchema_K2::PC_Class || Type.PinCategory == UEdGraphSchema_K2::PC_SoftClass;
	return bHoldsClass ? UClass::StaticClass() : Cast<UClass>(Type.PinSubCategoryObject.Get());
}

/** The default in the engine's text form. */
TVexelExpected<FString> ImportText(const UEdGraphPin& Pin, const FString& Text)
{
	if (Pin.PinType.IsContainer())
	{
		return Text;
	}
	const FName Category = Pin.PinType.PinCategory;
	if (IsObjectCategory(Category))
	{
		VEXEL_TRY(FString Path, FLumHelper::ParseReferenceString(Text), "while parsing reference for pin '%s'", *Pin.PinName.ToString());
		// A soft reference may be to what is not there yet.
		if (Category != UEdGraphSchema_K2::PC_SoftObject && Category != UEdGraphSchema_K2::PC_SoftClass)
		{
			VEXEL_TRY_VOID(FLumHelper::ResolveReference(Path, GetReferencedClass(Pin.PinType), Pin.GetOwningNodeUnchecked()));
		}
		return Path;
	}
	if (Category == UEdGraphSchema_K2::PC_Boolean)
	{
		return Text.ToLower();
	}
	const FComponentStruct* const Struct = FindComponentStruct(Pin.PinType);
	if (Struct && !Text.IsEmpty())
	{
		return ImportComponents(*Struct, Text);
	}
	return Text;
}

/** Refuses what the pin cannot hold, with the schema's reason. */
TVexelExpected<void> CheckDefault(const UEdGraphSchema& Schema, const UEdGraphPin& Pin, const FString& Text)
{
	const UEdGraphSchema_K2* const K2Schema = Cast<UEdGraphSchema_K2>(&Schema);
	if (!K2Schema)
	{
		return {};
	}
	FString Value;
	TObjectPtr<UObject> Object;
	FText TextValue;
	K2Schema->GetPinDefaultValuesFromString(Pin.PinType, Pin.GetOwningNodeUnchecked(), Text, Value, Object, TextValue);
	FString Reason;
	if (!K2Schema->DefaultValueSimpleValidation(Pin.PinType, Pin.PinName, Value, Object, TextValue, &Reason))
	{
		const UEnum* const Enum = Pin.PinType.IsContainer() ? nullptr : Cast<UEnum>(Pin.PinType.PinSubCategoryObject.Get());
		Reason += Enum ? TEXT(". ") + FLumHelper::ListEnumerators(*Enum) : FString();
		return VEXEL_ERROR(FLumError_Import, "Invalid pin default value: %s", *Reason);
	}
	Reason = K2Schema->IsPinDefaultValid(&Pin, Value, Object, TextValue);
	if (!Reason.IsEmpty())
	{
		return VEXEL_ERROR(FLumError_Import, "Invalid pin default value: %s", *Reason);
	}
	return {};
}

/** An input that a user has defined on a node that gives it out: the node's own record of the pin has its default. */
bool SetUserDefinedDefault(const UEdGraphPin& Pin, const FString& Text)
{
	UK2Node_EditablePinBase* const Node = Cast<UK2Node_EditablePinBase>(Pin.GetOwningNodeUnchecked());
	const TSharedPtr<FUserPinInfo>* const Info =
		Node ? Node->UserDefinedPins.FindByPredicate([&Pin](const TSharedPtr<FUserPinInfo>& Candidate)
				   { return Candidate->PinName == Pin.PinName && Candidate->DesiredPinDirection == Pin.Direction; })
			 : nullptr;
	if (!Info)
	{
		return false;
	}
	Node->Modify();
	return Node->ModifyUserDefinedPinDefaultValue(*Info, Text);
}

TVexelExpected<void> ImportDefault(UEdGraphPin& Pin, const FJsonValue& Value)
{
	VEXEL_TRY(const UEdGraphSchema* const Schema, GetSchemaForDefault<FLumError_Import>(Pin));
	FString Given;
	if (!Value.TryGetString(Given) || Value.Type != EJson::String)
	{
		return VEXEL_ERROR(FLumError_Import, "Expected string value");
	}
	if (Schema->IsSelfPin(Pin))
	{
		if (Given != SelfDefault)
		{
			return VEXEL_ERROR(FLumError_Import, "Invalid pin default value: a self pin is always '%s'", SelfDefault);
		}
		return {};
	}
	VEXEL_TRY(const FString Text, ImportText(Pin, Given));
	VEXEL_TRY_VOID(CheckDefault(*Schema, Pin, Text));
	if (Pin.Direction == EGPD_Input && !Pin.bDefaultValueIsIgnored)
	{
		Pin.GetOwningNode()->Modify();
		Schema->TrySetDefaultValue(Pin, Text);
		return {};
	}
	if (!SetUserDefinedDefault(Pin, Text))
	{
		return VEXEL_ERROR(FLumError_Import, "Pin does not support default values");
	}
	return {};
}
}

TVexelExpected<FString> FLumHelper::GetPinDefaultValue(const UEdGraphPin& Pin)
{
	VEXEL_TRY(FString Text, ExportDefault(Pin), "while exporting pin '%s'", *Pin.PinName.ToString());
	return Text;
}

TVexelExpected<TSharedRef<FJsonValue>> FLumHelper::GetPinDefaultValueAsJsonValue(const UEdGraphPin& Pin)
{
	VEXEL_TRY(FString Text, GetPinDefaultValue(Pin));
	return MakeShared<FJsonValueString>(MoveTemp(Text));
}

TVexelExpected<void> FLumHelper::SetPinDefaultValueFromJsonValue(UEdGraphPin& Pin, const TSharedRef<FJsonValue>& Value)
{
	// What the node does when told of a new default may replace its pins.
	const FString PinName = Pin.PinName.ToString();
	VEXEL_TRY_VOID(ImportDefault(Pin, *Value), "while exporting pin '%s'", *PinName);
	return {};
}
