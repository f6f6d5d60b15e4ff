#include "K2Node_GetClassDefaults.h"

#include "Engine/MemberReference.h"
#include "UObject/Class.h"
#include "UObject/UnrealType.h"

#define LOCTEXT_NAMESPACE "K2Node"

namespace
{
struct FClassDefaultsPins : public FOptionalPinManager
{
	bool CanTreatPropertyAsOptional(FProperty* TestProperty) const override
	{
		return TestProperty->HasAllPropertyFlags(CPF_BlueprintVisible) && !TestProperty->HasAnyPropertyFlags(CPF_InstancedReference) &&
			!TestProperty->IsA<FMulticastDelegateProperty>();
	}
};
}

UClass* UK2Node_GetClassDefaults::GetInputClass() const
{
	return GetClassOfPin(FindClassPin());
}

void UK2Node_GetClassDefaults::AllocateDefaultPins()
{
	CreatePin(EGPD_Input, UEdGraphSchema_K2::PC_Class, UObject::StaticClass(), TEXT("Class"));
}

void UK2Node_GetClassDefaults::ReallocatePinsDuringReconstruction(TArray<UEdGraphPin*>& OldPins)
{
	AllocateDefaultPins();
	UClass* const Class = GetClassOfPin(FindOldPin(OldPins, FindClassPin()->PinName, EGPD_Input));
	if (Class)
	{
		UClass* const Declared = FMemberReference::GetNewestClass(Class);
		FClassDefaultsPins Manager;
		Manager.RebuildPropertyList(ShowPinForProperties, Declared);
		Manager.CreateVisiblePins(ShowPinForProperties, Declared, EGPD_Output, this);
	}
}

void UK2Node_GetClassDefaults::NotifyPinConnectionListChanged(UEdGraphPin* Pin)
{
	Super::NotifyPinConnectionListChanged(Pin);
	if (Pin == FindClassPin())
	{
		ReconstructNode();
	}
}

void UK2Node_GetClassDefaults::PinDefaultValueChanged(UEdGraphPin* Pin)
{
	Super::PinDefaultValueChanged(Pin);
	if (Pin == FindClassPin())
	{
		ReconstructNode();
	}
}

FText UK2Node_GetClassDefaults::GetNodeTitle(ENodeTitleType::Type TitleType) const
{
	return LOCTEXT("GetClassDefaults_Title", "Get Class Defaults");
}

FText UK2Node_GetClassDefaults::GetMenuCategory() const
{
	return LOCTEXT("GetClassDefaults_Category", "Utilities");
}

#undef LOCTEXT_NAMESPACE
