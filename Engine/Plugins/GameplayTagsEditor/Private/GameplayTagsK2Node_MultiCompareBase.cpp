#include "GameplayTagsK2Node_MultiCompareBase.h"

#define LOCTEXT_NAMESPACE "K2Node"

namespace
{
/** As many as a user can oversee, and a bound on what text of elsewhere may ask for. */
constexpr int32 MaxCases = 256;
}

FName UGameplayTagsK2Node_MultiCompareBase::GetAnswerName(FName CaseName)
{
	return FName(*(CaseName.ToString() + TEXT(" True")));
}

FName UGameplayTagsK2Node_MultiCompareBase::MakeCaseName() const
{
	for (int32 Index = 0;; ++Index)
	{
		const FName Name(*FString::Printf(TEXT("Case_%d"), Index));
		if (!PinNames.Contains(Name))
		{
			return Name;
		}
	}
}

void UGameplayTagsK2Node_MultiCompareBase::CreateCase(FName CaseName)
{
	CreatePin(EGPD_Input, UEdGraphSchema_K2::PC_Struct, GetCaseStruct(), CaseName);
	CreatePin(EGPD_Output, UEdGraphSchema_K2::PC_Boolean, GetAnswerName(CaseName));
}

void UGameplayTagsK2Node_MultiCompareBase::AllocateDefaultPins()
{
	CreateOwnerPin();
	NumberOfPins = FMath::Clamp(NumberOfPins, 0, MaxCases);
	PinNames.SetNum(FMath::Min(PinNames.Num(), NumberOfPins));
	while (PinNames.Num() < NumberOfPins)
	{
		PinNames.Add(MakeCaseName());
	}
	for (const FName Name : PinNames)
	{
		CreateCase(Name);
	}
}

void UGameplayTagsK2Node_MultiCompareBase::AddInputPin()
{
	if (NumberOfPins < MaxCases)
	{
		Modify();
		++NumberOfPins;
		PinNames.Add(MakeCaseName());
		CreateCase(PinNames.Last());
	}
}

bool UGameplayTagsK2Node_MultiCompareBase::CanRemovePin(const UEdGraphPin* Pin) const
{
	return NumberOfPins > 1 && Pin && PinNames.ContainsByPredicate([Pin](const FName Name)
										  { return Pin->PinName == Name || Pin->PinName == GetAnswerName(Name); });
}

void UGameplayTagsK2Node_MultiCompareBase::RemoveInputPin(UEdGraphPin* Pin)
{
	if (!CanRemovePin(Pin))
	{
		return;
	}
	Modify();
	const int32 Case = PinNames.IndexOfByPredicate([Pin](const FName Name)
		{ return Pin->PinName == Name || Pin->PinName == GetAnswerName(Name); });
	const FName Name = PinNames[Case];
	RemovePin(FindPin(Name, EGPD_Input));
	RemovePin(FindPin(GetAnswerName(Name), EGPD_Output));
	PinNames.RemoveAt(Case);
	--NumberOfPins;
}

FText UGameplayTagsK2Node_MultiCompareBase::GetMenuCategory() const
{
	return LOCTEXT("GameplayTagsMultiCompareBase_Category", "Gameplay Tags");
}

#undef LOCTEXT_NAMESPACE
