#include "Blueprint/Builders/VexelBlueprintNodeTypeIdBuilder.h"

#include "Blueprint/Builders/VexelNodeTypeRules.h"
#include "VexelLog.h"

#include "EdGraph/EdGraphNode.h"
#include "UObject/Class.h"

namespace
{
/** The rules by node class, with what each looked-up class inherits. */
class FRuleTable
{
public:
	FRuleTable()
	{
		FVexelNodeTypeRules::Collect(Rules);
	}

	/** Null, with a log line, where neither the class nor one above it has a rule. */
	const FVexelNodeTypeRule* Find(const UClass* NodeClass)
	{
		TArray<FName> Walked;
		for (const UClass* Class = NodeClass; Class; Class = Class->GetSuperClass())
		{
			if (const FVexelNodeTypeRule* const Found = Rules.Find(Class->GetFName()))
			{
				const FVexelNodeTypeRule Rule = *Found;
				for (const FName& ClassName : Walked)
				{
					Rules.Add(ClassName, Rule);
				}
				return Rules.Find(NodeClass->GetFName());
			}
			Walked.Add(Class->GetFName());
		}
		const FString Chain = FString::JoinBy(Walked, TEXT(" -> "), [](const FName& ClassName)
			{ return ClassName.ToString(); });
		VEXEL_LOG(Warning, "MakeNodeTypeReference: No handler found for node class '%s' (%s)", *NodeClass->GetName(), *Chain);
		return nullptr;
	}

private:
	TMap<FName, FVexelNodeTypeRule> Rules;
};
}

TVexelNodeTypeId FVexelBlueprintNodeTypeIdBuilder::Create(const UEdGraphNode* Node, FVexelBlueprintMapping& Mapping)
{
	if (!Node)
	{
		return TVexelNodeTypeId();
	}
	static FRuleTable Table;
	const FVexelNodeTypeRule* const Rule = Table.Find(Node->GetClass());
	return Rule ? TVexelNodeTypeId((*Rule)(*Node, Mapping)) : TVexelNodeTypeId();
}

FString FVexelBlueprintNodeTypeIdBuilder::MakeOwnerPrefix(const UClass* OwnerClass)
{
	if (!OwnerClass)
	{
		return FString();
	}
	FString Name = OwnerClass->GetName();
	Name.RemoveFromEnd(TEXT("_C"), ESearchCase::IgnoreCase);
	Name.RemoveFromStart(TEXT("SKEL_"), ESearchCase::IgnoreCase);
	return Name + TEXT(".");
}
