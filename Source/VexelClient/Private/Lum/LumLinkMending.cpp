#include "Lum/LumLinkMending.h"

#include "EdGraph/EdGraph.h"
#include "EdGraphSchema_K2.h"
#include "Engine/Blueprint.h"
#include "K2Node.h"
#include "Kismet2/BlueprintEditorUtils.h"

namespace
{
/** Whether the link does not fit, and a conversion would help. */
bool NeedsConversion(const UEdGraphSchema_K2& Schema, const UEdGraphPin& Output, const UEdGraphPin& Input)
{
	const UBlueprint* const Blueprint = FBlueprintEditorUtils::FindBlueprintForNode(Output.GetOwningNode());
	const UClass* const Class = Blueprint ? Blueprint->SkeletonGeneratedClass.Get() : nullptr;
	return !Schema.ArePinsCompatible(&Output, &Input, Class) &&
		(Schema.SearchForAutocastFunction(Output.PinType, Input.PinType).IsSet() ||
			Schema.FindSpecializedConversionNode(Output.PinType, Input, false).IsSet());
}

void MendLink(UEdGraphPin& Pin, UEdGraphPin& Other)
{
	UEdGraphPin& Output = Pin.Direction == EGPD_Output ? Pin : Other;
	UEdGraphPin& Input = Pin.Direction == EGPD_Output ? Other : Pin;
	const UEdGraphSchema_K2* const Schema = Cast<UEdGraphSchema_K2>(Pin.GetSchema());
	if (!Schema || Output.bOrphanedPin || Input.bOrphanedPin || !NeedsConversion(*Schema, Output, Input))
	{
		return;
	}
	Output.GetOwningNode()->GetGraph()->Modify();
	Output.Modify();
	Input.Modify();
	Output.BreakLinkTo(&Input);
	if (!Schema->TryCreateConnection(&Output, &Input))
	{
		Output.MakeLinkTo(&Input);
	}
}
}

void LumLinkMending::Mend(const TArray<UK2Node*>& Nodes)
{
	for (UK2Node* const Node : Nodes)
	{
		// A conversion may have the node make its pins again.
		TArray<TPair<FGuid, FGuid>> Links;
		TArray<UEdGraphNode*> Others;
		for (const UEdGraphPin* const Pin : Node->Pins)
		{
			for (const UEdGraphPin* const Other : Pin->LinkedTo)
			{
				Links.Emplace(Pin->PinId, Other->PinId);
				Others.Add(Other->GetOwningNode());
			}
		}
		for (int32 Index = 0; Index < Links.Num(); ++Index)
		{
			UEdGraphPin* const Pin = Node->FindPinById(Links[Index].Key);
			UEdGraphPin* const Other = Others[Index]->FindPinById(Links[Index].Value);
			if (Pin && Other && Pin->LinkedTo.Contains(Other))
			{
				MendLink(*Pin, *Other);
			}
		}
	}
}
