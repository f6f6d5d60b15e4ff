#include "Engine/SimpleConstructionScript.h"

#include "Components/SceneComponent.h"
#include "Engine/BlueprintGeneratedClass.h"
#include "Engine/InheritableComponentHandler.h"
#include "Engine/SCS_Node.h"
#include "GameFramework/Actor.h"
#include "UObject/UObjectGlobals.h"
#include "UObject/UObjectHash.h"

FString USCS_Node::ComponentTemplateNameSuffix(TEXT("_GEN_VARIABLE"));

namespace
{
const TCHAR* const DefaultSceneRootName = TEXT("DefaultSceneRoot");

/** A pointer array of the wrapped type has the layout of one of the raw type. */
template <typename T>
const TArray<T*>& AsRawArray(const TArray<TObjectPtr<T>>& Array)
{
	static_assert(sizeof(TObjectPtr<T>) == sizeof(T*));
	return reinterpret_cast<const TArray<T*>&>(Array);
}
}

// Nodes

void USCS_Node::SetVariableName(const FName& NewName, bool bRenameTemplate)
{
	if (bRenameTemplate && ComponentTemplate)
	{
		const FString NewTemplateName = NewName.ToString() + ComponentTemplateNameSuffix;
		UObject* const Existing = StaticFindObjectFast(nullptr, ComponentTemplate->GetOuter(), FName(*NewTemplateName));
		if (!Existing)
		{
			ComponentTemplate->Rename(*NewTemplateName, nullptr, REN_DontCreateRedirectors);
		}
	}
	const FComponentKey OldKey(this);
	InternalVariableName = NewName;
	RenameOverrides(OldKey);
}

void USCS_Node::RenameOverrides(const FComponentKey& OldKey)
{
	TArray<UClass*> Derived;
	if (OldKey.IsSCSKey())
	{
		GetDerivedClasses(OldKey.GetComponentOwner(), Derived, true);
	}
	for (UClass* const Class : Derived)
	{
		UBlueprintGeneratedClass* const Generated = Cast<UBlueprintGeneratedClass>(Class);
		UInheritableComponentHandler* const Handler = Generated ? Generated->GetInheritableComponentHandler() : nullptr;
		if (Handler)
		{
			Handler->FollowRename(OldKey, *this);
		}
	}
}

UActorComponent* USCS_Node::GetActualComponentTemplate(UBlueprintGeneratedClass* ActualBPGC) const
{
	const FComponentKey Key(this);
	const USimpleConstructionScript* const Script = GetSCS();
	for (const UBlueprintGeneratedClass* Class = ActualBPGC; Class && Class->SimpleConstructionScript != Script;
		 Class = Cast<UBlueprintGeneratedClass>(Class->GetSuperClass()))
	{
		const UInheritableComponentHandler* const Handler = Class->InheritableComponentHandler;
		if (UActorComponent* const Override = Handler ? Handler->GetOverridenComponentTemplate(Key) : nullptr)
		{
			return Override;
		}
	}
	return ComponentTemplate;
}

USimpleConstructionScript* USCS_Node::GetSCS() const
{
	return GetTypedOuter<USimpleConstructionScript>();
}

const TArray<USCS_Node*>& USCS_Node::GetChildNodes() const
{
	return AsRawArray(ChildNodes);
}

TArray<USCS_Node*> USCS_Node::PreloadChain()
{
	TArray<USCS_Node*> Chain = {this};
	for (int32 Index = 0; Index < Chain.Num(); ++Index)
	{
		for (USCS_Node* const Child : Chain[Index]->ChildNodes)
		{
			if (Child)
			{
				Chain.AddUnique(Child);
			}
		}
	}
	return Chain;
}

void USCS_Node::AddChildNode(USCS_Node* InNode, bool bAddToAllNodes)
{
	if (!InNode || ChildNodes.Contains(InNode))
	{
		return;
	}
	Modify();
	ChildNodes.Add(InNode);
	USimpleConstructionScript* const Script = GetSCS();
	if (bAddToAllNodes && Script)
	{
		Script->Modify();
		Script->AllNodes.AddUnique(InNode);
	}
}

void USCS_Node::RemoveChildNode(USCS_Node* InNode, bool bRemoveFromAllNodes)
{
	Modify();
	if (ChildNodes.Remove(InNode) > 0 && bRemoveFromAllNodes)
	{
		GetSCS()->RemoveFromAllNodes(InNode);
	}
}

bool USCS_Node::IsChildOf(const USCS_Node* TestParent) const
{
	return TestParent && TestParent != this && const_cast<USCS_Node*>(TestParent)->PreloadChain().Contains(const_cast<USCS_Node*>(this));
}

bool USCS_Node::IsRootNode() const
{
	const USimpleConstructionScript* const Script = GetSCS();
	return Script && Script->GetRootNodes().Contains(const_cast<USCS_Node*>(this));
}

void USCS_Node::SetParent(USCS_Node* InParentNode)
{
	check(InParentNode);
	Modify();
	const UClass* const ParentOwner = InParentNode->GetSCS()->GetOwnerClass();
	ParentComponentOrVariableName = InParentNode->GetVariableName();
	ParentComponentOwnerClassName = ParentOwner ? ParentOwner->GetFName() : NAME_None;
	bIsParentComponentNative = false;
}

// Scripts

USCS_Node* USimpleConstructionScript::CreateNode(UClass* NewComponentClass, FName NewComponentVariableName)
{
	check(NewComponentClass && NewComponentClass->IsChildOf(UActorComponent::StaticClass()));
	UClass* const Owner = GetOwnerClass();
	check(Owner);
	Owner->Modify();
	const FName VariableName = GenerateNewComponentName(NewComponentClass, NewComponentVariableName);
	const FName TemplateName(*(VariableName.ToString() + USCS_Node::ComponentTemplateNameSuffix));
	USCS_Node* const Node = NewObject<USCS_Node>(this, MakeUniqueObjectName(this, USCS_Node::StaticClass()), RF_Transactional);
	Node->ComponentClass = NewComponentClass;
	Node->ComponentTemplate = NewObject<UActorComponent>(
		Owner, NewComponentClass, TemplateName, RF_ArchetypeObject | RF_Transactional | RF_Public);
	Node->SetVariableName(VariableName, false);
	Node->VariableGuid = FGuid::NewGuid();
	return Node;
}

FName USimpleConstructionScript::GenerateNewComponentName(const UClass* ComponentClass, FName DesiredName) const
{
	FString BaseName = DesiredName.IsNone() ? ComponentClass->GetName() : DesiredName.ToString();
	if (DesiredName.IsNone())
	{
		BaseName.RemoveFromEnd(TEXT("Component"), ESearchCase::CaseSensitive);
	}
	FString Candidate = BaseName;
	for (int32 Suffix = 1; FindSCSNode(FName(*Candidate)); ++Suffix)
	{
		Candidate = FString::Printf(TEXT("%s%d"), *BaseName, Suffix);
	}
	return FName(*Candidate);
}

void USimpleConstructionScript::AddNode(USCS_Node* Node)
{
	if (!Node || RootNodes.Contains(Node))
	{
		return;
	}
	Modify();
	RootNodes.Add(Node);
	AllNodes.AddUnique(Node);
	ValidateSceneRootNodes();
}

void USimpleConstructionScript::ValidateSceneRootNodes()
{
	const UClass* const ParentClass = GetParentClass();
	const AActor* const ParentDefaults = ParentClass && ParentClass->IsChildOf(AActor::StaticClass()) ? GetDefault<AActor>(ParentClass)
																									  : nullptr;
	if (!ParentDefaults)
	{
		return;
	}
	TArray<const UBlueprintGeneratedClass*> Parents;
	UBlueprintGeneratedClass::GetGeneratedClassesHierarchy(ParentClass, Parents);
	const auto IsSceneRoot = [this](const USCS_Node* Node)
	{ return Node && Node != DefaultSceneRootNode && Node->ComponentTemplate && Node->ComponentTemplate->IsA<USceneComponent>(); };
	const bool bParentHasRoot = ParentDefaults->GetRootComponent() ||
		Parents.ContainsByPredicate([](const UBlueprintGeneratedClass* Parent)
			{ return Parent->SimpleConstructionScript && Parent->SimpleConstructionScript->GetRootNodes().Num() > 0; });
	const bool bNeedsDefault = !bParentHasRoot && !RootNodes.ContainsByPredicate([&IsSceneRoot](const USCS_Node* Node)
													  { return IsSceneRoot(Node); });
	const bool bHasDefault = DefaultSceneRootNode && RootNodes.Contains(DefaultSceneRootNode);
	if (bNeedsDefault && !bHasDefault)
	{
		Modify();
		if (!DefaultSceneRootNode)
		{
			DefaultSceneRootNode = CreateNode(USceneComponent::StaticClass(), DefaultSceneRootName);
		}
		RootNodes.Add(DefaultSceneRootNode);
		AllNodes.AddUnique(DefaultSceneRootNode);
	}
	else if (!bNeedsDefault && bHasDefault)
	{
		Modify();
		// What hung below it hangs below the component that takes its place.
		TObjectPtr<USCS_Node>* const Successor = RootNodes.FindByPredicate([&IsSceneRoot](const USCS_Node* Node)
			{ return IsSceneRoot(Node); });
		DefaultSceneRootNode->Modify();
		const TArray<TObjectPtr<USCS_Node>> Children = DefaultSceneRootNode->ChildNodes;
		DefaultSceneRootNode->ChildNodes.Empty();
		RootNodes.Remove(DefaultSceneRootNode);
		AllNodes.Remove(DefaultSceneRootNode);
		for (USCS_Node* const Child : Children)
		{
			if (Successor)
			{
				(*Successor)->AddChildNode(Child, false);
			}
			else
			{
				RootNodes.Add(Child);
			}
		}
	}
}

void USimpleConstructionScript::RemoveFromAllNodes(USCS_Node* Node)
{
	Modify();
	for (USCS_Node* const Below : Node->PreloadChain())
	{
		AllNodes.Remove(Below);
	}
}

void USimpleConstructionScript::RemoveNode(USCS_Node* Node, const bool bValidateSceneRootNodes)
{
	if (!Node)
	{
		return;
	}
	Modify();
	if (RootNodes.Remove(Node) > 0)
	{
		RemoveFromAllNodes(Node);
	}
	else if (USCS_Node* const Parent = FindParentNode(Node))
	{
		Parent->RemoveChildNode(Node);
	}
	if (bValidateSceneRootNodes)
	{
		ValidateSceneRootNodes();
	}
}

void USimpleConstructionScript::RemoveNodeAndPromoteChildren(USCS_Node* Node)
{
	if (!Node)
	{
		return;
	}
	Modify();
	USCS_Node* const Parent = FindParentNode(Node);
	const TArray<TObjectPtr<USCS_Node>> Children = Node->ChildNodes;
	Node->Modify();
	Node->ChildNodes.Empty();
	RemoveNode(Node, false);
	for (USCS_Node* const Child : Children)
	{
		if (Parent)
		{
			Parent->AddChildNode(Child);
		}
		else
		{
			AddNode(Child);
		}
	}
	ValidateSceneRootNodes();
}

USCS_Node* USimpleConstructionScript::FindSCSNode(const FName InName) const
{
	const TObjectPtr<USCS_Node>* const Found = AllNodes.FindByPredicate([InName](const USCS_Node* Node)
		{ return Node && Node->GetVariableName() == InName; });
	return Found ? Found->Get() : nullptr;
}

USCS_Node* USimpleConstructionScript::FindSCSNodeByGuid(const FGuid Guid) const
{
	const TObjectPtr<USCS_Node>* const Found = AllNodes.FindByPredicate([&Guid](const USCS_Node* Node)
		{ return Node && Node->VariableGuid == Guid; });
	return Found ? Found->Get() : nullptr;
}

USCS_Node* USimpleConstructionScript::FindParentNode(USCS_Node* InNode) const
{
	const TObjectPtr<USCS_Node>* const Found = AllNodes.FindByPredicate([InNode](const USCS_Node* Node)
		{ return Node && Node->ChildNodes.Contains(InNode); });
	return Found ? Found->Get() : nullptr;
}

const TArray<USCS_Node*>& USimpleConstructionScript::GetRootNodes() const
{
	return AsRawArray(RootNodes);
}

const TArray<USCS_Node*>& USimpleConstructionScript::GetAllNodes() const
{
	return AsRawArray(AllNodes);
}

TArray<const USCS_Node*> USimpleConstructionScript::GetAllNodesConst() const
{
	TArray<const USCS_Node*> Result;
	for (const USCS_Node* const Node : AllNodes)
	{
		Result.Add(Node);
	}
	return Result;
}

UBlueprint* USimpleConstructionScript::GetBlueprint() const
{
	if (UBlueprint* const Outer = GetTypedOuter<UBlueprint>())
	{
		return Outer;
	}
	return UBlueprint::GetBlueprintFromClass(GetOwnerClass());
}

UClass* USimpleConstructionScript::GetOwnerClass() const
{
	return GetTypedOuter<UClass>();
}

UClass* USimpleConstructionScript::GetParentClass() const
{
	const UClass* const Owner = GetOwnerClass();
	return Owner ? Owner->GetSuperClass() : nullptr;
}
