#include "BlueprintDependencies.h"

#include "EdGraph/EdGraph.h"
#include "EdGraph/EdGraphNode.h"
#include "EdGraph/EdGraphPin.h"
#include "Engine/Blueprint.h"
#include "Engine/BlueprintGeneratedClass.h"
#include "UObject/CoreUObjectDelegates.h"
#include "UObject/Interface.h"
#include "UObject/ReferenceCollector.h"
#include "UObject/UObjectGlobals.h"
#include "UObject/UObjectHash.h"

FBlueprintDependencies& FBlueprintDependencies::Get()
{
	static FBlueprintDependencies Dependencies;
	return Dependencies;
}

FBlueprintDependencies::FBlueprintDependencies()
{
	FCoreUObjectDelegates::OnObjectModified.AddRaw(this, &FBlueprintDependencies::OnModified);
}

UBlueprint* FBlueprintDependencies::FindBlueprintOf(const UObject* Object)
{
	for (const UObject* Outer = Object; Outer; Outer = Outer->GetOuter())
	{
		if (const UBlueprint* const Blueprint = Cast<UBlueprint>(Outer))
		{
			return const_cast<UBlueprint*>(Blueprint);
		}
		if (const UClass* const Class = Cast<UClass>(Outer))
		{
			return UBlueprint::GetBlueprintFromClass(Class);
		}
	}
	return nullptr;
}

void FBlueprintDependencies::OnModified(UObject* Object)
{
	if (!UsedBy.IsEmpty())
	{
		UsedBy.Remove(FindBlueprintOf(Object));
	}
}

FBlueprintDependencies::FUsed FBlueprintDependencies::Collect(const UBlueprint& Blueprint)
{
	FUsed Used;
	const auto Add = [&Used, &Blueprint](const UObject* Object)
	{
		UBlueprint* const Owner = FindBlueprintOf(Object);
		if (Owner && Owner != &Blueprint)
		{
			Used.Add(Owner);
		}
	};
	const auto AddType = [&Add](const FEdGraphPinType& Type)
	{
		Add(Type.PinSubCategoryObject.Get());
		Add(Type.PinValueType.TerminalSubCategoryObject.Get());
	};
	for (const UClass* Parent = Blueprint.ParentClass.Get(); Parent; Parent = Parent->GetSuperClass())
	{
		Add(Parent);
	}
	for (const FBPInterfaceDescription& Interface : Blueprint.ImplementedInterfaces)
	{
		Add(Interface.Interface.Get());
	}
	for (const FBPVariableDescription& Variable : Blueprint.NewVariables)
	{
		AddType(Variable.VarType);
	}
	TArray<UEdGraph*> Graphs;
	Blueprint.GetAllGraphs(Graphs);
	TArray<UObject*> References;
	FReferenceFinder Finder(References);
	for (const UEdGraph* const Graph : Graphs)
	{
		for (UEdGraphNode* const Node : Graph->Nodes)
		{
			if (!Node)
			{
				continue;
			}
			References.Reset();
			Finder.FindReferences(Node);
			for (const UObject* const Reference : References)
			{
				Add(Reference);
			}
			for (const UEdGraphPin* const Pin : Node->Pins)
			{
				AddType(Pin->PinType);
				Add(Pin->DefaultObject.Get());
			}
		}
	}
	return Used;
}

const FBlueprintDependencies::FUsed& FBlueprintDependencies::GetUsed(UBlueprint& Blueprint)
{
	const FUsed* const Known = UsedBy.Find(&Blueprint);
	return Known ? *Known : UsedBy.Add(&Blueprint, Collect(Blueprint));
}

TArray<UBlueprint*> FBlueprintDependencies::FindUsers(const UBlueprint& Blueprint)
{
	for (auto Known = UsedBy.CreateIterator(); Known; ++Known)
	{
		if (!Known->Key.IsValid())
		{
			Known.RemoveCurrent();
		}
	}
	TArray<UObject*> All;
	GetObjectsOfClass(UBlueprint::StaticClass(), All, true, RF_ClassDefaultObject, EInternalObjectFlags::Garbage);
	TArray<UBlueprint*> Users;
	for (UObject* const Object : All)
	{
		UBlueprint* const Other = CastChecked<UBlueprint>(Object);
		if (Other != &Blueprint && GetUsed(*Other).Contains(const_cast<UBlueprint*>(&Blueprint)))
		{
			Users.Add(Other);
		}
	}
	return Users;
}
