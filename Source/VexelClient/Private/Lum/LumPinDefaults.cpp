#include "Lum/LumHelper.h"

#include "Blueprint/Builders/VexelBlueprintPropTypeBuilder.h"
#include "Lum/LumErrors.h"

#include "Containers/ArrayView.h"
#include "EdGraph/EdGraphNode.h"
#include "EdGraph/EdGraphSchema.h"
#include "EdGraphSchema_K2.h"

namespace
{
/** A struct whose pins have their default as numbers between commas. */
struct FComponentStruct
{
	const TCHAR* TypeId;
	/** Names by which the engine's own text form may tell the components. */
	TArray<const TCHAR*> Components;
	bool bIntegers;
	const TCHAR* NameInError;
};

const FComponentStruct* FindComponentStruct(const FString& TypeId)
{
	static const FComponentStruct Structs[] = {
		{TEXT("struct.Vector"), {TEXT("X"), TEXT("Y"), TEXT("Z")}, false, TEXT("vector")},
		{TEXT("struct.Vector2D"), {TEXT("X"), TEXT("Y")}, false, TEXT("vector2d")},
		{TEXT("struct.Vector4"), {TEXT("X"), TEXT("Y"), TEXT("Z"), TEXT("W")}, false, TEXT("vector4")},
		{TEXT("struct.Rotator"), {TEXT("Pitch"), TEXT("Yaw"), TEXT("Roll")}, false, TEXT("rotator")},
		{TEXT("struct.LinearColor"), {TEXT("R"), TEXT("G"), TEXT("B"), TEXT("A")}, false, TEXT("linear color")},
		{TEXT("struct.Color"), {TEXT("R"), TEXT("G"), TEXT("B"), TEXT("A")}, true, TEXT("color")},
	};
	for (const FComponentStruct& Struct : Structs)
	{
		if (TypeId == Struct.TypeId)
		{
			return &Struct;
		}
	}
	return nullptr;
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
		if (Place == INDEX_NONE || !Number.IsNumeric())
		{
			return false;
		}
		OutNumbers[Place] = FCString::Atod(*Number);
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
		{ return Struct.bIntegers ? FString::Printf(TEXT("%d"), static_cast<int32>(Number)) : FString::Printf(TEXT("%f"), Number); });
}

bool IsObjectCategory(FName Category)
{
	const FName Categories[] = {UEdGraphSchema_K2::PC_Object, UEdGraphSchema_K2::PC_Class, UEdGraphSchema_K2::PC_Interface,
		UEdGraphSchema_K2::PC_SoftObject, UEdGraphSchema_K2::PC_SoftClass};
	return MakeArrayView(Categories).Contains(Category);
}

/** The pin's type id, whether the value comes by reference or not. */
FString GetValueTypeId(const UEdGraphPin& Pin)
{
	FEdGraphPinType Type = Pin.PinType;
	Type.bIsReference = false;
	return FVexelBlueprintPropTypeBuilder::MakeId(Type).ToString();
}

TVexelExpected<FString> ExportDefault(const UEdGraphPin& Pin)
{
	const UEdGraphNode* const Node = Pin.GetOwningNodeUnchecked();
	const UEdGraphSchema* const Schema = Node ? Node->GetSchema() : nullptr;
	if (!Schema)
	{
		return VEXEL_ERROR(FLumError_Export, "Pin schema invalid");
	}
	const FName Category = Pin.PinType.PinCategory;
	if (Category == UEdGraphSchema_K2::PC_Exec || Schema->IsDelegateCategory(Category))
	{
		return VEXEL_ERROR(FLumError_Export, "Pin does not support default values");
	}
	if (Schema->IsSelfPin(Pin))
	{
		return FString(TEXT("self"));
	}
	if (Pin.PinType.IsContainer())
	{
		return Pin.DefaultValue;
	}
	if (IsObjectCategory(Category))
	{
		return Pin.DefaultObject ? FLumHelper::MakeReferenceString(Pin.DefaultObject) : FLumHelper::MakeReferenceString(Pin.DefaultValue);
	}
	const FComponentStruct* const Struct = FindComponentStruct(GetValueTypeId(Pin));
	if (Struct && !Pin.DefaultValue.IsEmpty())
	{
		return ExportComponents(*Struct, Pin.DefaultValue);
	}
	return Pin.GetDefaultAsString();
}
}

TVexelExpected<TSharedRef<FJsonValue>> FLumHelper::GetPinDefaultValueAsJsonValue(const UEdGraphPin& Pin)
{
	VEXEL_TRY(const FString Text, ExportDefault(Pin), "while exporting pin '%s'", *Pin.PinName.ToString());
	return MakeShared<FJsonValueString>(Text);
}
