#include "EdGraphSchema_K2.h"

#include "Engine/MemberReference.h"
#include "UObject/Class.h"
#include "UObject/Interface.h"
#include "UObject/UnrealType.h"

namespace
{
using Schema = UEdGraphSchema_K2;

bool IsWildcard(const FEdGraphPinType& Type)
{
	return Type.PinCategory == Schema::PC_Wildcard;
}

bool IsByte(const FName Category)
{
	return Category == Schema::PC_Byte || Category == Schema::PC_Enum;
}

const UClass* GetClassOfType(const FEdGraphPinType& Type, const UClass* CallingContext)
{
	const UClass* const Class = Type.PinSubCategory == Schema::PSC_Self ? CallingContext : Cast<UClass>(Type.PinSubCategoryObject.Get());
	return Class ? Class->GetAuthoritativeClass() : nullptr;
}

bool AreClassesCompatible(const FEdGraphPinType& Output, const FEdGraphPinType& Input, const UClass* CallingContext)
{
	const UClass* const OutputClass = GetClassOfType(Output, CallingContext);
	const UClass* const InputClass = GetClassOfType(Input, CallingContext);
	if (!InputClass || InputClass == UObject::StaticClass())
	{
		return true;
	}
	const bool bIsInterface = InputClass->IsChildOf(UInterface::StaticClass());
	return OutputClass && (OutputClass->IsChildOf(InputClass) || (bIsInterface && OutputClass->ImplementsInterface(InputClass)));
}

/** Whether a struct has the members of the struct that it derives from and no more, so that one's values are the other's. */
bool AddsNoMembers(const UScriptStruct& Derived, const UScriptStruct& Base)
{
	for (const UStruct* Struct = &Derived; Struct && Struct != &Base; Struct = Struct->GetSuperStruct())
	{
		if (TFieldIterator<FProperty>(Struct, EFieldIterationFlags::None))
		{
			return false;
		}
	}
	// Of a struct that shows nothing of itself, nothing is known of what one that derives from it adds.
	return TFieldIterator<FProperty>(&Base) && Derived.GetStructureSize() == Base.GetStructureSize();
}

/** Structs whose values differ in the precision of their numbers alone: the compiler converts between them. */
bool DifferInPrecision(const UScriptStruct& A, const UScriptStruct& B)
{
	static const TMap<FName, FName> DoubleOfSingle = {
		{TEXT("Vector3f"), TEXT("Vector")},
		{TEXT("Vector2f"), TEXT("Vector2D")},
		{TEXT("Vector4f"), TEXT("Vector4")},
		{TEXT("Rotator3f"), TEXT("Rotator")},
		{TEXT("Quat4f"), TEXT("Quat")},
		{TEXT("Plane4f"), TEXT("Plane")},
		{TEXT("Transform3f"), TEXT("Transform")},
		{TEXT("Matrix44f"), TEXT("Matrix")},
	};
	const auto IsSingleOf = [](const UScriptStruct& Single, const UScriptStruct& Double)
	{
		const FName* const Name = DoubleOfSingle.Find(Single.GetFName());
		return Name && *Name == Double.GetFName() && Single.GetOutermost() == Double.GetOutermost();
	};
	return IsSingleOf(A, B) || IsSingleOf(B, A);
}

bool AreStructsCompatible(const FEdGraphPinType& Output, const FEdGraphPinType& Input)
{
	const UScriptStruct* const OutputStruct = Cast<UScriptStruct>(Output.PinSubCategoryObject.Get());
	const UScriptStruct* const InputStruct = Cast<UScriptStruct>(Input.PinSubCategoryObject.Get());
	if (OutputStruct == InputStruct)
	{
		return true;
	}
	return OutputStruct && InputStruct &&
		((OutputStruct->IsChildOf(InputStruct) && AddsNoMembers(*OutputStruct, *InputStruct)) ||
			DifferInPrecision(*OutputStruct, *InputStruct));
}

bool AreDelegatesCompatible(const FEdGraphPinType& Output, const FEdGraphPinType& Input)
{
	const UFunction* const OutputSignature = FMemberReference::ResolveSimpleMemberReference<UFunction>(
		Output.PinSubCategoryMemberReference);
	const UFunction* const InputSignature = FMemberReference::ResolveSimpleMemberReference<UFunction>(Input.PinSubCategoryMemberReference);
	return !OutputSignature || !InputSignature || OutputSignature->IsSignatureCompatibleWith(InputSignature);
}

/** An index chooses one of several: by number, by enumeration, or one of two. */
bool CanBeIndex(const FEdGraphPinType& Type)
{
	return !Type.IsContainer() &&
		(IsWildcard(Type) || IsByte(Type.PinCategory) || Type.PinCategory == Schema::PC_Int || Type.PinCategory == Schema::PC_Boolean);
}

bool TakesAnyType(const FEdGraphPinType& Wildcard, const FEdGraphPinType& Other)
{
	return Other.PinCategory != Schema::PC_Exec && (Wildcard.PinSubCategory != Schema::PSC_Index || CanBeIndex(Other));
}

bool AreOtherCategoriesCompatible(const FEdGraphPinType& Output, const FEdGraphPinType& Input, const UClass* CallingContext)
{
	// The two kinds of reference are not of one size: an array of the one is no array of the other.
	if (!Output.IsContainer() && Output.PinCategory == Schema::PC_Object && Input.PinCategory == Schema::PC_Interface)
	{
		return AreClassesCompatible(Output, Input, CallingContext);
	}
	if (!Output.IsContainer() && Output.PinCategory == Schema::PC_Interface && Input.PinCategory == Schema::PC_Object)
	{
		return Input.PinSubCategoryObject == UObject::StaticClass();
	}
	return IsByte(Output.PinCategory) && IsByte(Input.PinCategory) && Output.PinSubCategoryObject == Input.PinSubCategoryObject;
}

bool AreMapValuesCompatible(
	const UEdGraphSchema_K2& K2Schema, const FEdGraphPinType& Output, const FEdGraphPinType& Input, const UClass* CallingContext)
{
	return K2Schema.ArePinTypesCompatible(FEdGraphPinType::GetPinTypeForTerminalType(Output.PinValueType),
		FEdGraphPinType::GetPinTypeForTerminalType(Input.PinValueType), CallingContext);
}
}

bool UEdGraphSchema_K2::ArePinsCompatible(
	const UEdGraphPin* PinA, const UEdGraphPin* PinB, const UClass* CallingContext, bool bIgnoreArray) const
{
	if (PinA->Direction == PinB->Direction)
	{
		return false;
	}
	const UEdGraphPin& Output = PinA->Direction == EGPD_Output ? *PinA : *PinB;
	const UEdGraphPin& Input = PinA->Direction == EGPD_Output ? *PinB : *PinA;
	return ArePinTypesCompatible(Output.PinType, Input.PinType, CallingContext, bIgnoreArray);
}

bool UEdGraphSchema_K2::ArePinTypesCompatible(
	const FEdGraphPinType& Output, const FEdGraphPinType& Input, const UClass* CallingContext, bool bIgnoreArray) const
{
	// A wildcard that is no container yet may become one.
	const bool bContainerIsOpen = (IsWildcard(Output) && !Output.IsContainer()) || (IsWildcard(Input) && !Input.IsContainer());
	if (!bIgnoreArray && Output.ContainerType != Input.ContainerType && !bContainerIsOpen)
	{
		return false;
	}
	if (Output.IsMap() && Input.IsMap() && !AreMapValuesCompatible(*this, Output, Input, CallingContext))
	{
		return false;
	}
	if (IsWildcard(Output) || IsWildcard(Input))
	{
		return TakesAnyType(Output, Input) && TakesAnyType(Input, Output);
	}
	if (Output.PinCategory != Input.PinCategory)
	{
		return AreOtherCategoriesCompatible(Output, Input, CallingContext);
	}
	if (Output.PinCategory == PC_Struct)
	{
		return AreStructsCompatible(Output, Input);
	}
	if (IsDelegateCategory(Output.PinCategory))
	{
		return AreDelegatesCompatible(Output, Input);
	}
	if (IsByte(Output.PinCategory))
	{
		// An enumeration's value is a number; a number is not always one of its values.
		return !Input.PinSubCategoryObject.IsValid() || Input.PinSubCategoryObject == Output.PinSubCategoryObject;
	}
	const bool bRefersToObject = Output.PinCategory == PC_Object || Output.PinCategory == PC_Interface || Output.PinCategory == PC_Class ||
		Output.PinCategory == PC_SoftObject || Output.PinCategory == PC_SoftClass;
	if (bRefersToObject)
	{
		return AreClassesCompatible(Output, Input, CallingContext);
	}
	// Numbers of either precision do: the compiler converts them, but not those that the call would write to in place.
	const bool bSamePrecision = Output.PinSubCategory == Input.PinSubCategory;
	const bool bWrittenInPlace = Input.IsContainer() && Input.bIsReference && !Input.bIsConst;
	return Output.PinCategory != PC_Real || bSamePrecision || !bWrittenInPlace;
}
