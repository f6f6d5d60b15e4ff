#include "EdGraphToken.h"

#include "EdGraph/EdGraphNode.h"
#include "Engine/Blueprint.h"
#include "UObject/Class.h"

#define LOCTEXT_NAMESPACE "EdGraphToken"

namespace
{
FText NameObject(const UObject* Object)
{
	if (const UEdGraphNode* const Node = Cast<UEdGraphNode>(Object))
	{
		return Node->GetNodeTitle(ENodeTitleType::ListView);
	}
	if (const UClass* const Class = Cast<UClass>(Object))
	{
		const UBlueprint* const Blueprint = UBlueprint::GetBlueprintFromClass(Class);
		return FText::FromString(Blueprint ? Blueprint->GetName() : Class->GetName());
	}
	return Object ? FText::FromString(Object->GetName()) : LOCTEXT("NoneObject", "(none)");
}

FText NamePin(const UEdGraphPin* Pin)
{
	if (!Pin)
	{
		return LOCTEXT("NonePin", "(none)");
	}
	const FText DisplayName = Pin->GetDisplayName();
	// The usual ways in and out of a node have no word of their own on it.
	return DisplayName.IsEmpty() ? FText::FromName(Pin->PinName) : DisplayName;
}
}

FEdGraphToken::FEdGraphToken(const UObject* InObject, const UEdGraphPin* InPin, const FText& Text)
	: ObjectBeingReferenced(InObject)
{
	PinBeingReferenced.SetPin(InPin);
	CachedText = Text;
}

TSharedRef<FEdGraphToken> FEdGraphToken::Create(const UObject* InObject)
{
	return MakeShareable(new FEdGraphToken(InObject, nullptr, NameObject(InObject)));
}

TSharedRef<FEdGraphToken> FEdGraphToken::Create(const UEdGraphPin* InPin)
{
	return MakeShareable(new FEdGraphToken(InPin ? InPin->GetOwningNodeUnchecked() : nullptr, InPin, NamePin(InPin)));
}

#undef LOCTEXT_NAMESPACE
