#include "InputActionValuePin.h"

#include "EdGraphSchema_K2.h"
#include "UObject/Class.h"
#include "UObject/EnumProperty.h"
#include "UObject/NoExportTypes.h"
#include "UObject/UObjectGlobals.h"
#include "UObject/UnrealType.h"

FEdGraphPinType FInputActionValuePin::GetType(const UObject* InputAction)
{
	using Schema = UEdGraphSchema_K2;
	// In the order of EInputActionValueType.
	const FEdGraphPinType Types[] = {
		FEdGraphPinType(Schema::PC_Boolean, NAME_None, nullptr, EPinContainerType::None, false, FEdGraphTerminalType()),
		FEdGraphPinType(Schema::PC_Real, Schema::PC_Double, nullptr, EPinContainerType::None, false, FEdGraphTerminalType()),
		FEdGraphPinType(
			Schema::PC_Struct, NAME_None, TBaseStructure<FVector2D>::Get(), EPinContainerType::None, false, FEdGraphTerminalType()),
		FEdGraphPinType(
			Schema::PC_Struct, NAME_None, TBaseStructure<FVector>::Get(), EPinContainerType::None, false, FEdGraphTerminalType()),
	};
	const FProperty* const ValueType = InputAction ? FindFProperty<FProperty>(InputAction->GetClass(), TEXT("ValueType")) : nullptr;
	const FEnumProperty* const Enum = CastField<FEnumProperty>(ValueType);
	const int64 Value = Enum ? Enum->GetUnderlyingProperty()->GetSignedIntPropertyValue(Enum->ContainerPtrToValuePtr<void>(InputAction))
							 : 0;
	return Types[Value > 0 && Value < static_cast<int64>(UE_ARRAY_COUNT(Types)) ? Value : 0];
}

FText FInputActionValuePin::GetActionName(const UObject* InputAction)
{
	return InputAction ? FText::FromString(InputAction->GetName()) : NSLOCTEXT("K2Node", "InputAction_None", "None");
}

UClass* FInputActionValuePin::GetActionClass()
{
	return FindObject<UClass>(nullptr, TEXT("/Script/EnhancedInput.InputAction"));
}
