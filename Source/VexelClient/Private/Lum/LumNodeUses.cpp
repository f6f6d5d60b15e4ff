#include "Lum/LumNodeUses.h"

#include "EdGraph/EdGraph.h"
#include "Engine/Blueprint.h"
#include "K2Node_Variable.h"
#include "Kismet2/BlueprintEditorUtils.h"
#include "UObject/UObjectIterator.h"

namespace
{
bool IsUse(const UK2Node_Variable& Node, const UBlueprint& Blueprint, FName Name, const FString& Scope)
{
	const FMemberReference& Reference = Node.VariableReference;
	if (Reference.GetMemberName() != Name || Reference.GetMemberScopeName() != Scope || !LumNodeUses::StandsInBlueprint(Node))
	{
		return false;
	}
	return Scope.IsEmpty() ? LumNodeUses::IsClassOf(Reference.GetMemberParentClass(Node.GetBlueprintClassFromNode()), Blueprint)
						   : FBlueprintEditorUtils::FindBlueprintForNode(&Node) == &Blueprint;
}
}

bool LumNodeUses::IsClassOf(const UClass* Class, const UBlueprint& Blueprint)
{
	for (; Class; Class = Class->GetSuperClass())
	{
		if (Class->ClassGeneratedBy == &Blueprint)
		{
			return true;
		}
	}
	return false;
}

bool LumNodeUses::StandsInBlueprint(const UEdGraphNode& Node)
{
	const UEdGraph* const Graph = Node.GetGraph();
	const UBlueprint* const Blueprint = FBlueprintEditorUtils::FindBlueprintForNode(&Node);
	return Graph && Blueprint && !Blueprint->HasAnyFlags(RF_Transient) && Graph->Nodes.Contains(const_cast<UEdGraphNode*>(&Node));
}

TArray<UK2Node*> LumNodeUses::FindOfVariable(const UBlueprint& Blueprint, FName Name, const FString& Scope)
{
	TArray<UK2Node*> Nodes;
	for (TObjectIterator<UK2Node_Variable> It; It; ++It)
	{
		if (IsUse(**It, Blueprint, Name, Scope))
		{
			Nodes.Add(*It);
		}
	}
	return Nodes;
}
