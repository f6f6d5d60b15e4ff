#include "Blueprint/VexelBlueprintNodeType.h"

#include "Blueprint/Builders/VexelNodeTypeDescription.h"
#include "Blueprint/VexelBlueprintMapping.h"
#include "VexelLog.h"

#include "EdGraph/EdGraphNode.h"
#include "K2Node.h"

namespace
{
FString TextOr(FString Text, const TCHAR* Fallback)
{
	return Text.IsEmpty() ? FString(Fallback) : MoveTemp(Text);
}
}

FVexelBlueprintNodeType::FVexelBlueprintNodeType(const UEdGraphNode& Node, FVexelBlueprintMapping& Mapping)
{
	if (!Node.IsA<UK2Node>())
	{
		VEXEL_LOG(Warning, "FVexelBlueprintNodeType: Node '%s' is not a K2Node!", *Node.GetName());
		return;
	}
	Id = Mapping.MakeNodeTypeReference(Node);
	Name = Node.GetNodeTitle(ENodeTitleType::MenuTitle).ToString();
	KeywordsRaw = Node.GetKeywords().ToString().TrimStartAndEnd();
	Keywords = KeywordsRaw.IsEmpty() ? Name : Name + TEXT(" ") + KeywordsRaw;
	Category = TextOr(Node.GetMenuCategory().ToString(), TEXT("Unknown"));
	Description = FVexelNodeTypeDescription::Make(Id, Name, KeywordsRaw, Node.GetTooltipText().ToString());
	for (const UEdGraphPin* const Pin : Node.Pins)
	{
		if (Pin)
		{
			Pins.Emplace(*Pin, Mapping);
		}
	}
}

void FVexelBlueprintNodeType::ToJson(const TSharedRef<FJsonObject>& Object) const
{
	Object->SetStringField(TEXT("id"), Id.ToString());
	Object->SetStringField(TEXT("name"), Name);
	Object->SetStringField(TEXT("keywords_raw"), KeywordsRaw);
	Object->SetStringField(TEXT("keywords"), Keywords);
	Object->SetStringField(TEXT("category"), Category);
	Object->SetStringField(TEXT("description"), Description);
	TArray<TSharedPtr<FJsonValue>> PinValues;
	for (const FVexelBlueprintNodeTypePin& Pin : Pins)
	{
		const TSharedRef<FJsonObject> PinObject = MakeShared<FJsonObject>();
		Pin.ToJson(PinObject);
		PinValues.Add(MakeShared<FJsonValueObject>(PinObject));
	}
	Object->SetArrayField(TEXT("pins"), MoveTemp(PinValues));
}

bool FVexelBlueprintNodeType::FromJson(const TSharedRef<FJsonObject>& Object)
{
	FVexelBlueprintNodeType Read;
	FString IdText;
	if (!Object->TryGetStringField(TEXT("id"), IdText))
	{
		return false;
	}
	Read.Id = TVexelNodeTypeId(IdText);
	Object->TryGetStringField(TEXT("name"), Read.Name);
	Object->TryGetStringField(TEXT("keywords_raw"), Read.KeywordsRaw);
	Object->TryGetStringField(TEXT("keywords"), Read.Keywords);
	Object->TryGetStringField(TEXT("category"), Read.Category);
	Object->TryGetStringField(TEXT("description"), Read.Description);
	const TArray<TSharedPtr<FJsonValue>>* PinValues = nullptr;
	Object->TryGetArrayField(TEXT("pins"), PinValues);
	for (int32 Index = 0; PinValues && Index < PinValues->Num(); ++Index)
	{
		const TSharedPtr<FJsonObject>* PinObject = nullptr;
		FVexelBlueprintNodeTypePin Pin;
		if (!(*PinValues)[Index]->TryGetObject(PinObject) || !Pin.FromJson(PinObject->ToSharedRef()))
		{
			return false;
		}
		Read.Pins.Add(MoveTemp(Pin));
	}
	*this = MoveTemp(Read);
	return true;
}
