#include "Engine/InheritableComponentHandler.h"

#include "Components/ActorComponent.h"
#include "Engine/BlueprintGeneratedClass.h"
#include "Engine/SCS_Node.h"
#include "Engine/SimpleConstructionScript.h"
#include "UObject/Package.h"
#include "UObject/PlaceholderObject.h"
#include "UObject/UObjectGlobals.h"
#include "UObject/UObjectHash.h"
#include "UObject/UnknownProperties.h"
#include "UObject/UnrealType.h"

DEFINE_LOG_CATEGORY_STATIC(LogInheritableComponents, Log, All);

const FString UInheritableComponentHandler::SCSDefaultSceneRootOverrideNamePrefix(TEXT("ICH-"));

namespace
{
/** Gives an object that was read with the values of its class for defaults those of its archetype instead. */
void InheritDefaults(UObject& Object)
{
	const UObject& Archetype = *Object.GetArchetype();
	const UObject& ClassDefaults = *Object.GetClass()->GetDefaultObject();
	for (TFieldIterator<FProperty> It(Object.GetClass()); It; ++It)
	{
		for (int32 Index = 0; Index < It->ArrayDim && !It->ContainsInstancedObjectProperty(); ++Index)
		{
			if (It->Identical_InContainer(&Object, &ClassDefaults, Index, PPF_DeepComparison))
			{
				It->CopySingleValue(
					It->ContainerPtrToValuePtr<void>(&Object, Index), It->ContainerPtrToValuePtr<void>(&Archetype, Index));
			}
		}
	}
}
}

// Keys

FComponentKey::FComponentKey(const USCS_Node* SCSNode)
{
	const USimpleConstructionScript* const Script = SCSNode ? SCSNode->GetSCS() : nullptr;
	if (Script)
	{
		OwnerClass = Script->GetOwnerClass();
		SCSVariableName = SCSNode->GetVariableName();
		AssociatedGuid = SCSNode->VariableGuid;
	}
}

bool FComponentKey::Match(const FComponentKey& OtherKey) const
{
	const bool bBothHaveGuids = AssociatedGuid.IsValid() && OtherKey.AssociatedGuid.IsValid();
	return OwnerClass == OtherKey.OwnerClass &&
		(bBothHaveGuids ? AssociatedGuid == OtherKey.AssociatedGuid : SCSVariableName == OtherKey.SCSVariableName);
}

USCS_Node* FComponentKey::FindSCSNode() const
{
	const UBlueprintGeneratedClass* const Class = IsSCSKey() ? Cast<UBlueprintGeneratedClass>(OwnerClass.Get()) : nullptr;
	const USimpleConstructionScript* const Script = Class ? Class->SimpleConstructionScript.Get() : nullptr;
	if (!Script)
	{
		return nullptr;
	}
	return AssociatedGuid.IsValid() ? Script->FindSCSNodeByGuid(AssociatedGuid) : Script->FindSCSNode(SCSVariableName);
}

UActorComponent* FComponentKey::GetOriginalTemplate() const
{
	const USCS_Node* const Node = FindSCSNode();
	return Node ? Node->ComponentTemplate.Get() : nullptr;
}

// Overrides

FComponentOverrideRecord* UInheritableComponentHandler::FindRecord(const FComponentKey& Key)
{
	return Records.FindByPredicate([&Key](const FComponentOverrideRecord& Record)
		{ return Record.ComponentKey.Match(Key); });
}

bool UInheritableComponentHandler::HasOwnTemplate(const FComponentOverrideRecord& Record) const
{
	return Record.ComponentTemplate && Record.ComponentTemplate->IsIn(GetOuter());
}

UActorComponent* UInheritableComponentHandler::GetOverridenComponentTemplate(const FComponentKey& InKey) const
{
	const FComponentOverrideRecord* const Found = const_cast<UInheritableComponentHandler*>(this)->FindRecord(InKey);
	return Found && HasOwnTemplate(*Found) ? Found->ComponentTemplate.Get() : nullptr;
}

FName UInheritableComponentHandler::MakeTemplateName(const USCS_Node& Node)
{
	const bool bIsDefaultRoot = Node.GetSCS()->GetDefaultSceneRootNode() == &Node;
	const FString Prefix = bIsDefaultRoot ? SCSDefaultSceneRootOverrideNamePrefix : FString();
	return FName(*(Prefix + Node.GetVariableName().ToString() + USCS_Node::ComponentTemplateNameSuffix));
}

UActorComponent* UInheritableComponentHandler::CreateOverridenComponentTemplate(const FComponentKey& Key)
{
	if (UActorComponent* const Existing = GetOverridenComponentTemplate(Key))
	{
		return Existing;
	}
	UBlueprintGeneratedClass* const Class = Cast<UBlueprintGeneratedClass>(GetOuter());
	UBlueprintGeneratedClass* const Super = Class ? Cast<UBlueprintGeneratedClass>(Class->GetSuperClass()) : nullptr;
	const USCS_Node* const Node = Key.FindSCSNode();
	UActorComponent* const Archetype = Node && Super && Super->IsChildOf(Key.GetComponentOwner())
		? Node->GetActualComponentTemplate(Super)
		: nullptr;
	if (!Archetype)
	{
		UE_LOG(LogInheritableComponents, Warning, TEXT("%s inherits no component %s of %s"), *GetNameSafe(Class),
			*Key.GetSCSVariableName().ToString(), *GetNameSafe(Key.GetComponentOwner()));
		return nullptr;
	}
	// A component that is gone may have left an override of this name.
	FollowParents();
	const FName Name = MakeTemplateName(*Node);
	if (const UObject* const InTheWay = StaticFindObjectFast(nullptr, Class, Name))
	{
		UE_LOG(LogInheritableComponents, Warning, TEXT("%s is in the way of an override"), *InTheWay->GetFullName());
		return nullptr;
	}
	Remember();
	FComponentOverrideRecord& Record = Records.AddDefaulted_GetRef();
	Record.ComponentClass = Archetype->GetClass();
	Record.ComponentKey = FComponentKey(Node);
	Record.ComponentTemplate = NewObject<UActorComponent>(Class, Archetype->GetClass(), Name,
		RF_ArchetypeObject | RF_Transactional | RF_Public | RF_InheritableComponentTemplate, Archetype);
	return Record.ComponentTemplate;
}

void UInheritableComponentHandler::Remember()
{
	// The real editor's files do not have it marked for undo.
	SetFlags(RF_Transactional);
	Modify();
}

void UInheritableComponentHandler::MoveAway(UActorComponent& Template)
{
	Template.SetFlags(RF_Transactional);
	Template.Rename(nullptr, GetTransientPackageAsObject(), REN_ForceGlobalUnique | REN_DontCreateRedirectors);
}

void UInheritableComponentHandler::RemoveOverridenComponentTemplate(const FComponentKey& Key)
{
	FComponentOverrideRecord* const Record = FindRecord(Key);
	if (!Record)
	{
		return;
	}
	Remember();
	if (HasOwnTemplate(*Record))
	{
		MoveAway(*Record->ComponentTemplate);
	}
	Records.RemoveAt(static_cast<int32>(Record - Records.GetData()));
}

bool UInheritableComponentHandler::IsValid() const
{
	return !Records.ContainsByPredicate([this](const FComponentOverrideRecord& Record)
		{ return !IsRecordValid(Record); });
}

void UInheritableComponentHandler::GetAllTemplates(TArray<UActorComponent*>& OutArray) const
{
	for (const FComponentOverrideRecord& Record : Records)
	{
		OutArray.Add(Record.ComponentTemplate);
	}
}

FComponentKey UInheritableComponentHandler::FindKey(const UActorComponent* ComponentTemplate) const
{
	const FComponentOverrideRecord* const Found = Records.FindByPredicate([ComponentTemplate](const FComponentOverrideRecord& Record)
		{ return Record.ComponentTemplate == ComponentTemplate; });
	return Found ? Found->ComponentKey : FComponentKey();
}

void UInheritableComponentHandler::UpdateOwnerClass(UBlueprintGeneratedClass* OwnerClass)
{
	for (FComponentOverrideRecord& Record : Records)
	{
		const UActorComponent* const Template = Record.ComponentTemplate;
		if (Template && Template->GetOuter() != OwnerClass)
		{
			Record.ComponentTemplate = DuplicateObject<UActorComponent>(Template, OwnerClass, Template->GetFName());
		}
	}
}

// What the parents have

bool UInheritableComponentHandler::IsRecordValid(const FComponentOverrideRecord& Record) const
{
	return HasOwnTemplate(Record) && HasOriginal(Record);
}

bool UInheritableComponentHandler::HasOriginal(const FComponentOverrideRecord& Record) const
{
	const UClass* const Owner = Record.ComponentKey.GetComponentOwner();
	const UClass* const Class = Cast<UClass>(GetOuter());
	if (!Class || !Record.ComponentKey.IsValid() || Class == Owner || !Class->IsChildOf(Owner))
	{
		return false;
	}
	// What a graph adds, and what a parent has that is not here, cannot be looked up.
	if (!Record.ComponentKey.IsSCSKey() || UE::CoreUObject::IsPlaceholder(Owner))
	{
		return true;
	}
	const UActorComponent* const Original = Record.ComponentKey.GetOriginalTemplate();
	return Original && Original->GetClass() == Record.ComponentTemplate->GetClass();
}

void UInheritableComponentHandler::FollowRename(const FComponentKey& OldKey, const USCS_Node& Node)
{
	FComponentOverrideRecord* const Record = FindRecord(OldKey);
	if (!Record)
	{
		return;
	}
	Remember();
	Record->ComponentKey = FComponentKey(&Node);
	UActorComponent* const Template = Record->ComponentTemplate;
	const FName Name = MakeTemplateName(Node);
	if (Template && !StaticFindObjectFast(nullptr, Template->GetOuter(), Name))
	{
		Template->SetFlags(RF_Transactional);
		Template->Rename(*Name.ToString(), nullptr, REN_DontCreateRedirectors);
	}
}

bool UInheritableComponentHandler::IsRecordNecessary(const FComponentOverrideRecord& Record)
{
	const UActorComponent& Template = *Record.ComponentTemplate;
	TArray<UObject*> Parts;
	GetObjectsWithOuter(&Template, Parts);
	const bool bHasUnknown = FUnknownProperties::HasAny(&Template) ||
		Parts.ContainsByPredicate([](const UObject* Part)
			{ return FUnknownProperties::HasAny(Part); });
	if (bHasUnknown)
	{
		return true;
	}
	const UObject* const Archetype = Template.GetArchetype();
	for (TFieldIterator<FProperty> It(Template.GetClass()); It; ++It)
	{
		for (int32 Index = 0; Index < It->ArrayDim; ++Index)
		{
			if (!It->Identical_InContainer(&Template, Archetype, Index, PPF_DeepComparison))
			{
				return true;
			}
		}
	}
	return false;
}

void UInheritableComponentHandler::ValidateTemplates()
{
	FollowParents();
	for (const FComponentOverrideRecord& Record : TArray<FComponentOverrideRecord>(Records))
	{
		// Another template than that of a node's may have an archetype that is not here.
		if (Record.ComponentKey.FindSCSNode() && !IsRecordNecessary(Record))
		{
			RemoveOverridenComponentTemplate(Record.ComponentKey);
		}
	}
}

void UInheritableComponentHandler::FollowParents()
{
	for (int32 Index = Records.Num() - 1; Index >= 0; --Index)
	{
		const FComponentOverrideRecord Record = Records[Index];
		if (IsRecordValid(Record))
		{
			const USCS_Node* const Node = Record.ComponentKey.FindSCSNode();
			const bool bIsRenamed = Node && Node->GetVariableName() != Record.ComponentKey.GetSCSVariableName();
			if (bIsRenamed)
			{
				FollowRename(Record.ComponentKey, *Node);
			}
			continue;
		}
		UE_LOG(LogInheritableComponents, Log, TEXT("%s overrides the component %s of %s no more: it is gone"), *GetNameSafe(GetOuter()),
			*Record.ComponentKey.GetSCSVariableName().ToString(), *GetNameSafe(Record.ComponentKey.GetComponentOwner()));
		Remember();
		Records.RemoveAt(Index);
		if (HasOwnTemplate(Record))
		{
			MoveAway(*Record.ComponentTemplate);
			ObsoleteRecords.Add(Record);
		}
	}
}

void UInheritableComponentHandler::ReclaimTemplates()
{
	for (int32 Index = ObsoleteRecords.Num() - 1; Index >= 0; --Index)
	{
		const FComponentOverrideRecord Record = ObsoleteRecords[Index];
		const USCS_Node* const Node = Record.ComponentKey.FindSCSNode();
		const FName Name = Node ? MakeTemplateName(*Node) : FName();
		if (Node && HasOriginal(Record) && !FindRecord(Record.ComponentKey) && !StaticFindObjectFast(nullptr, GetOuter(), Name))
		{
			Record.ComponentTemplate->Rename(*Name.ToString(), GetOuter(), REN_DontCreateRedirectors | REN_NonTransactional);
			Records.Add(Record);
			ObsoleteRecords.RemoveAt(Index);
		}
	}
}

void UInheritableComponentHandler::PostLoad()
{
	Super::PostLoad();
	UPackage* const Package = GetPackage();
	const bool bWasDirty = Package->IsDirty();
	// A parent that was saved with another name since was not found as the archetype when the template was read.
	for (const FComponentOverrideRecord& Record : TArray<FComponentOverrideRecord>(Records))
	{
		const USCS_Node* const Node = Record.ComponentTemplate ? Record.ComponentKey.FindSCSNode() : nullptr;
		if (Node && Node->GetVariableName() != Record.ComponentKey.GetSCSVariableName())
		{
			FollowRename(Record.ComponentKey, *Node);
			InheritDefaults(*Record.ComponentTemplate);
		}
	}
	// The file is read alike another time.
	Package->SetDirtyFlag(bWasDirty);
}
