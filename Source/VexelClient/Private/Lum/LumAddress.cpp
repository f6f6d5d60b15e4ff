#include "Lum/LumAddress.h"

#include "Lum/Compound/LumGraphCompound.h"
#include "Lum/Compound/LumNodeCompound.h"
#include "Lum/LumCompound.h"
#include "Lum/LumContext.h"
#include "Lum/LumErrors.h"
#include "Lum/LumHelper.h"
#include "Lum/LumVariable.h"

#include "EdGraph/EdGraph.h"
#include "EdGraph/EdGraphNode.h"
#include "Engine/Blueprint.h"
#include "ScopedTransaction.h"

namespace
{
/** The parts of an address. */
struct FAddressParts
{
	explicit FAddressParts(const FString& Text)
	{
		FString Rest;
		bHasGraph = Text.Split(TEXT("/"), &Graph, &Rest);
		if (!bHasGraph)
		{
			Path = Text;
		}
		else if (!Rest.Split(TEXT("."), &Node, &Path))
		{
			Node = Rest;
		}
	}

	bool bHasGraph;
	FString Graph;
	/** Empty for the graph itself. */
	FString Node;
	FString Path;
};

TVexelExpected<UEdGraph*> FindGraph(UBlueprint& Blueprint, const FString& Name)
{
	TArray<UEdGraph*> Graphs;
	Blueprint.GetAllGraphs(Graphs);
	UEdGraph* const* const Graph = Graphs.FindByPredicate([&Name](const UEdGraph* Candidate)
		{ return Candidate && Candidate->GetName() == Name; });
	if (!Graph)
	{
		return VEXEL_ERROR(FLumError_Traverse, "'%s' has no graph '%s'", *Blueprint.GetName(), *Name);
	}
	return *Graph;
}

TVexelExpected<UEdGraphNode*> FindNode(const UEdGraph& Graph, const FString& Name, FVexelBlueprintMapping& Mapping)
{
	UEdGraphNode* Node = nullptr;
	if (Mapping.ResolveNodeInGraph(TVexelNodeId(Name), Graph, Node))
	{
		return Node;
	}
	const TObjectPtr<UEdGraphNode>* const Named = Graph.Nodes.FindByPredicate([&Name](const UEdGraphNode* Candidate)
		{ return Candidate && Candidate->GetName() == Name; });
	if (!Named)
	{
		return VEXEL_ERROR(FLumError_Traverse, "Graph '%s' has no node '%s'", *Graph.GetName(), *Name);
	}
	return Named->Get();
}

/** Gives the nodes of the Blueprint their ids by having it exported, which names them in an order of its own. */
void NameNodes(UBlueprint& Blueprint, const FLumContext& Context)
{
	static_cast<void>(ILumCompound::Create(Blueprint)->JsonExportObject(Context));
}

TVexelExpected<TSharedRef<ILumCompound>> FindCompound(UBlueprint& Blueprint, const FAddressParts& Parts, const FLumContext& Context)
{
	if (!Parts.bHasGraph)
	{
		return ILumCompound::Create(Blueprint);
	}
	VEXEL_TRY(UEdGraph* const Graph, FindGraph(Blueprint, Parts.Graph));
	NameNodes(Blueprint, Context);
	if (Parts.Node.IsEmpty())
	{
		return StaticCastSharedRef<ILumCompound>(MakeShared<FLumGraphCompound>(*Graph));
	}
	VEXEL_TRY(UEdGraphNode* const Node, FindNode(*Graph, Parts.Node, Context.GetMapping()));
	return StaticCastSharedRef<ILumCompound>(FLumNodeCompound::Create(*Node));
}

TVexelExpected<TSharedRef<ILumProperty>> FindVariable(const ILumCompound& Compound, const FString& Scope, const FString& Name)
{
	VEXEL_TRY(const TSharedPtr<ILumVariable> Variable, Compound.FindVariable(TVexelVarScopeId(Scope), TVexelPropId(Name)));
	if (!Variable)
	{
		return VEXEL_ERROR(FLumError_Traverse, "Variable '%s' with scope '%s' not found", *Name, *Scope);
	}
	return StaticCastSharedRef<ILumProperty>(Variable.ToSharedRef());
}
}

FLumAddress::FLumAddress(const TSharedRef<FLumContext>& InContext)
	: Context(InContext)
{
}

TVexelExpected<FLumAddress> FLumAddress::Find(UBlueprint& Blueprint, const FString& Text)
{
	const FAddressParts Parts(Text);
	FLumAddress Address(MakeShared<FLumContext>(MakeShared<FVexelBlueprintMapping>()));
	VEXEL_TRY(const TSharedRef<ILumCompound> Compound, FindCompound(Blueprint, Parts, *Address.Context));
	Address.Compound = Compound;
	FString Scope;
	FString Name;
	if (Parts.Path.Split(TEXT("@"), &Scope, &Name))
	{
		VEXEL_TRY(const TSharedRef<ILumProperty> Variable, FindVariable(*Compound, Scope, Name));
		Address.Property = Variable;
	}
	else if (!Parts.Path.IsEmpty())
	{
		VEXEL_TRY(const TSharedRef<ILumProperty> Property, FLumHelper::CompoundPathResolve(Compound, Parts.Path));
		Address.Property = Property;
	}
	return Address;
}

TVexelExpected<TSharedRef<FJsonValue>> FLumAddress::Read() const
{
	if (Property)
	{
		return Property->JsonExportValue(*Context);
	}
	VEXEL_TRY(const TSharedRef<FJsonObject> Object, Describe());
	return StaticCastSharedRef<FJsonValue>(MakeShared<FJsonValueObject>(Object));
}

TVexelExpected<TSharedRef<FJsonObject>> FLumAddress::Describe() const
{
	return Property ? Property->JsonExportPropertyObject(*Context) : Compound->JsonExportObject(*Context);
}

TVexelExpected<void> FLumAddress::Write(const TSharedRef<FJsonValue>& Value) const
{
	if (!Property)
	{
		return VEXEL_ERROR(FLumError_Import, "The address names no value: a path must stand behind it");
	}
	const FScopedTransaction Transaction(INVTEXT("(Vexel) Set Value"));
	return Property->JsonImportValue(*Context, Value);
}
