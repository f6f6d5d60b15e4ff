#include "UObject/Object.h"

#include "Misc/ITransaction.h"
#include "UObject/Class.h"
#include "UObject/AssetRegistryTagsContext.h"
#include "UObject/Class.h"
#include "UObject/ObjectSaveContext.h"
#include "UObject/Package.h"
#include "UObject/PlaceholderObject.h"
#include "UObject/UObjectHash.h"
#include "UObject/UnknownProperties.h"
#include "UObject/UnrealType.h"
#include "UObjectHashTables.h"

ITransaction* GUndo = nullptr;

UObject::UObject() = default;

UObject::UObject(const FObjectInitializer& ObjectInitializer)
{
	checkf(ObjectInitializer.GetObj() == this || !ObjectInitializer.GetObj(),
		TEXT("An initializer belongs to the object that it was made for"));
}

bool IsValid(const UObject* Test)
{
	return Test && !Test->HasAnyInternalFlags(EInternalObjectFlags::Garbage | EInternalObjectFlags::Unreachable);
}

void UObject::PostLoad()
{
	SetFlags(RF_LoadCompleted);
}

void UObject::PostLoadSubobjects(FObjectInstancingGraph* OuterInstanceGraph)
{
	ClearFlags(RF_NeedPostLoadSubobjects);
	if (GetOuter() && GetOuter()->HasAnyFlags(RF_NeedPostLoadSubobjects))
	{
		GetOuter()->ConditionalPostLoadSubobjects();
	}
	InstanceSubobjectTemplates(OuterInstanceGraph);
}

void UObject::ConditionalPostLoad()
{
	if (!HasAnyFlags(RF_NeedPostLoad))
	{
		return;
	}
	ClearFlags(static_cast<EObjectFlags>(RF_NeedPostLoad | RF_WillBeLoaded));
	if (UObject* const Archetype = GetArchetype())
	{
		Archetype->ConditionalPostLoad();
	}
	ConditionalPostLoadSubobjects();
	PostLoad();
}

void UObject::ConditionalPostLoadSubobjects(FObjectInstancingGraph* OuterInstanceGraph)
{
	if (HasAnyFlags(RF_NeedPostLoadSubobjects))
	{
		PostLoadSubobjects(OuterInstanceGraph);
	}
}

void UObject::PreSave(FObjectPreSaveContext SaveContext) {}
void UObject::PreSaveRoot(FObjectPreSaveContext ObjectSaveContext) {}
void UObject::PostSaveRoot(FObjectPostSaveRootContext ObjectSaveContext) {}

void UObject::BeginDestroy()
{
	SetFlags(RF_BeginDestroyed);
}

void UObject::FinishDestroy()
{
	SetFlags(RF_FinishDestroyed);
	for (const FProperty* Property = GetClass()->DestructorLink; Property; Property = Property->DestructorLinkNext)
	{
		Property->DestroyValue_InContainer(this);
	}
}

bool UObject::ConditionalBeginDestroy()
{
	if (HasAnyFlags(RF_BeginDestroyed))
	{
		return false;
	}
	BeginDestroy();
	checkf(HasAnyFlags(RF_BeginDestroyed), TEXT("%s: BeginDestroy did not call Super::BeginDestroy"), *GetFullName());
	return true;
}

bool UObject::ConditionalFinishDestroy()
{
	if (HasAnyFlags(RF_FinishDestroyed))
	{
		return false;
	}
	FinishDestroy();
	checkf(HasAnyFlags(RF_FinishDestroyed), TEXT("%s: FinishDestroy did not call Super::FinishDestroy"), *GetFullName());
	return true;
}

bool SaveToTransactionBuffer(UObject* Object, bool bMarkDirty)
{
	// A struct or a class is made again from what declares it; its own state would not fit the instances that it has by then.
	const bool bIsRebuilt = Object->GetClass()->HasAnyCastFlag(CASTCLASS_UStruct);
	if (!GUndo || bIsRebuilt || !Object->HasAnyFlags(RF_Transactional) || Object->GetOutermost()->HasAnyPackageFlags(PKG_ContainsScript))
	{
		return false;
	}
	if (bMarkDirty)
	{
		Object->MarkPackageDirty();
	}
	GUndo->SaveObject(Object);
	return true;
}

void SnapshotTransactionBuffer(UObject* Object, TArrayView<const FProperty*> Properties)
{
	if (GUndo && Object->HasAnyFlags(RF_Transactional))
	{
		GUndo->SnapshotObject(Object, Properties);
	}
}

bool UObject::Modify(bool bAlwaysMarkDirty)
{
	if (!CanModify())
	{
		return false;
	}
	bool bSaved = false;
	const UPackage* const Package = GetOutermost();
	if (Package &&
		(!Package->HasAnyPackageFlags(PKG_PlayInEditor | PKG_ContainsScript | PKG_CompiledIn) ||
			GetClass()->HasAnyClassFlags(CLASS_DefaultConfig | CLASS_Config)))
	{
		bSaved = SaveToTransactionBuffer(this, bAlwaysMarkDirty);
		if (!bSaved && bAlwaysMarkDirty)
		{
			MarkPackageDirty();
		}
	}
	FCoreUObjectDelegates::OnObjectModified.Broadcast(this);
	return bSaved;
}

bool UObject::IsAsset() const
{
	return !HasAnyFlags(static_cast<EObjectFlags>(RF_Transient | RF_ClassDefaultObject)) && HasAnyFlags(RF_Public) && IsValid(this) &&
		GetOuter() && GetOuter()->GetClass() == UPackage::StaticClass() && GetOuter() != GetTransientPackageAsObject();
}

UWorld* UObject::GetWorld() const
{
	return GetOuter() ? GetOuter()->GetWorld() : nullptr;
}

void UObject::GetAssetRegistryTags(FAssetRegistryTagsContext Context) const
{
	TArray<FAssetRegistryTag> Tags;
	GetAssetRegistryTags(Tags);
	for (FAssetRegistryTag& Tag : Tags)
	{
		Context.AddTag(MoveTemp(Tag));
	}
}

void UObject::GetAssetRegistryTags(TArray<FAssetRegistryTag>& OutTags) const
{
	for (const FProperty* Property = GetClass()->PropertyLink; Property; Property = Property->PropertyLinkNext)
	{
		if (!Property->HasAnyPropertyFlags(CPF_AssetRegistrySearchable))
		{
			continue;
		}
		FString Value;
		Property->ExportTextItem_InContainer(Value, this, nullptr, nullptr, PPF_None);
		const bool bNumber = Property->IsA<FNumericProperty>() || Property->IsA<FBoolProperty>();
		OutTags.Add(FAssetRegistryTag(
			Property->GetFName(), Value, bNumber ? FAssetRegistryTag::TT_Numerical : FAssetRegistryTag::TT_Alphabetical));
	}
}

void UObject::GetPreloadDependencies(TArray<UObject*>& OutDeps)
{
	if (GetClass())
	{
		OutDeps.Add(GetClass());
	}
}

void UObject::PreEditChange(FProperty* PropertyAboutToChange)
{
	Modify();
}

void UObject::PreEditChange(FEditPropertyChain& PropertyAboutToChange)
{
	FCoreUObjectDelegates::OnPreObjectPropertyChanged.Broadcast(this, PropertyAboutToChange);
	PreEditChange(PropertyAboutToChange.GetActiveMemberNode() ? PropertyAboutToChange.GetActiveMemberNode()->GetValue() : nullptr);
}

bool UObject::CanEditChange(const FProperty* InProperty) const
{
	if (!InProperty)
	{
		return true;
	}
	// What could not be read and cannot be written would be lost, or the file with it.
	return !InProperty->HasAnyPropertyFlags(CPF_EditConst) && !FUnknownProperties::HasNativeForm(this, InProperty->GetFName());
}

void UObject::PostEditChange()
{
	FPropertyChangedEvent Event(nullptr);
	PostEditChangeProperty(Event);
}

void UObject::PostEditChangeProperty(FPropertyChangedEvent& PropertyChangedEvent)
{
	FCoreUObjectDelegates::OnObjectPropertyChanged.Broadcast(this, PropertyChangedEvent);
}

void UObject::PostEditChangeChainProperty(FPropertyChangedChainEvent& PropertyChangedEvent)
{
	PostEditChangeProperty(PropertyChangedEvent);
}

void UObject::PreEditUndo()
{
	PreEditChange(static_cast<FProperty*>(nullptr));
}

void UObject::PostEditUndo()
{
	if (IsValid(this))
	{
		PostEditChange();
	}
}

bool UObject::Rename(const TCHAR* NewName, UObject* NewOuter, ERenameFlagsType Flags)
{
	UObject* const OldOuter = GetOuter();
	const FName OldName = GetFName();
	UObject* const Outer = NewOuter ? NewOuter : OldOuter;
	const FUObjectHashTables& Tables = FUObjectHashTables::Get();
	const auto IsTaken = [&Tables, Outer, this](FName Name)
	{ return Tables.FindInOuter(Outer, Name, [this](UObject* Other)
				 { return Other != this; }) != nullptr; };

	FName Name = NewName ? FName(NewName) : OldName;
	if (!NewName && (IsTaken(Name) || (Flags & REN_ForceGlobalUnique)))
	{
		Name = MakeUniqueObjectName(Outer, GetClass(), NAME_None,
			(Flags & REN_ForceGlobalUnique) ? EUniqueObjectNameOptions::GloballyUnique : EUniqueObjectNameOptions::None);
	}
	if (NewOuter && (NewOuter == this || NewOuter->IsIn(this)))
	{
		UE_LOG(LogObj, Error, TEXT("Cannot move %s into itself"), *GetFullName());
		return false;
	}
	if (IsTaken(Name))
	{
		if (!(Flags & REN_Test))
		{
			UE_LOG(LogObj, Error, TEXT("Renaming %s to %s in %s: an object of that name exists"), *GetFullName(), *Name.ToString(),
				*GetPathNameSafe(Outer));
		}
		return false;
	}
	if (Flags & REN_Test)
	{
		return true;
	}
	if (Name == OldName && Outer == OldOuter && Name.ToString().Equals(OldName.ToString(), ESearchCase::CaseSensitive))
	{
		return true;
	}
	if (!(Flags & REN_NonTransactional))
	{
		SaveToTransactionBuffer(this, false);
	}
	const bool bDirty = !(Flags & REN_DoNotDirty);
	if (bDirty && !HasAnyFlags(RF_Transient))
	{
		MarkPackageDirty();
	}
	LowLevelRename(Name, Outer == OldOuter ? nullptr : Outer);
	if (bDirty && Outer != OldOuter)
	{
		MarkPackageDirty();
	}
	PostRename(OldOuter, OldName);
	FCoreUObjectDelegates::OnObjectRenamed.Broadcast(this, OldOuter, OldName);
	return true;
}

UObject* UObject::CreateDefaultSubobject(
	FName SubobjectFName, UClass* ReturnType, UClass* ClassToCreateByDefault, bool bIsRequired, bool bIsTransient)
{
	return FObjectInitializer::Get().CreateDefaultSubobject(
		this, SubobjectFName, ReturnType, ClassToCreateByDefault, bIsRequired, bIsTransient);
}

UObject* UObject::GetDefaultSubobjectByName(FName ToFind)
{
	UObject* const Found = StaticFindObjectFast(nullptr, this, ToFind);
	return Found && Found->IsDefaultSubobject() ? Found : nullptr;
}

void UObject::GetDefaultSubobjects(TArray<UObject*>& OutDefaultSubobjects)
{
	OutDefaultSubobjects.Empty();
	TArray<UObject*> Children;
	GetObjectsWithOuter(this, Children, false);
	for (UObject* const Child : Children)
	{
		if (Child->IsDefaultSubobject())
		{
			OutDefaultSubobjects.Add(Child);
		}
	}
}

UObject* UObject::GetArchetypeFromRequiredInfo(const UClass* Class, const UObject* Outer, FName Name, EObjectFlags ObjectFlags)
{
	if (ObjectFlags & RF_ClassDefaultObject)
	{
		return Class->GetArchetypeForCDO();
	}
	if (Outer && Outer->GetClass() != UPackage::StaticClass())
	{
		const UObject* const OuterArchetype = Outer->GetArchetype();
		if (OuterArchetype && OuterArchetype != Outer)
		{
			if (UObject* const Found = StaticFindObjectFastInternal(Class, OuterArchetype, Name))
			{
				return Found;
			}
		}
		const UClass* const OuterClass = (ObjectFlags & RF_InheritableComponentTemplate) && Outer->IsA<UClass>()
			? static_cast<const UClass*>(Outer)->GetSuperClass()
			: Outer->GetClass();
		if (UObject* const Found = OuterClass ? OuterClass->FindArchetype(Class, Name) : nullptr)
		{
			return Found;
		}
	}
	return Class->GetDefaultObject();
}

UObject* UObject::GetArchetype() const
{
	return GetArchetypeFromRequiredInfo(GetClass(), GetOuter(), GetFName(), GetFlags());
}

void UObject::GetArchetypeInstances(TArray<UObject*>& Instances)
{
	Instances.Empty();
	if (!HasAnyFlags(static_cast<EObjectFlags>(RF_ArchetypeObject | RF_ClassDefaultObject)))
	{
		return;
	}
	TArray<UObject*> Candidates;
	GetObjectsOfClass(GetClass(), Candidates, true, RF_NoFlags);
	for (UObject* const Candidate : Candidates)
	{
		if (Candidate != this && Candidate->IsBasedOnArchetype(this))
		{
			Instances.Add(Candidate);
		}
	}
}

bool UObject::IsBasedOnArchetype(const UObject* const TestArchetype) const
{
	const UObject* Template = this;
	while (true)
	{
		const UObject* const Next = Template->GetArchetype();
		if (!Next || Next == Template)
		{
			return false;
		}
		if (Next == TestArchetype)
		{
			return true;
		}
		Template = Next;
	}
}

UFunction* UObject::FindFunction(FName InName) const
{
	return GetClass()->FindFunctionByName(InName);
}

UFunction* UObject::FindFunctionChecked(FName InName) const
{
	UFunction* const Result = FindFunction(InName);
	checkf(Result, TEXT("%s has no function %s"), *GetFullName(), *InName.ToString());
	return Result;
}

void UObject::ProcessEvent(UFunction* Function, void* Parms)
{
	// What the function would have written is a default value then, never what the caller's memory held.
	for (const FField* Field = Function && Parms ? Function->ChildProperties : nullptr; Field; Field = Field->Next)
	{
		const FProperty* const Parameter = CastField<FProperty>(Field);
		const bool bIsInput = !Parameter || !Parameter->HasAnyPropertyFlags(CPF_OutParm) || Parameter->HasAnyPropertyFlags(CPF_ConstParm) ||
			(Parameter->HasAnyPropertyFlags(CPF_ReferenceParm) && !Parameter->HasAnyPropertyFlags(CPF_ReturnParm));
		for (int32 Index = 0; !bIsInput && Index < Parameter->ArrayDim; ++Index)
		{
			Parameter->ClearValue(Parameter->ContainerPtrToValuePtr<void>(Parms, Index));
		}
	}
	UE_LOG(LogObj, Verbose, TEXT("%s: script is not run here, the call of %s does nothing"), *GetFullName(), *GetNameSafe(Function));
}

bool UObject::IsInBlueprint() const
{
	for (const UObject* Object = this; Object; Object = Object->GetOuter())
	{
		if (Object->GetClass()->HasAnyClassFlags(CLASS_CompiledFromBlueprint) ||
			(Object->IsA<UClass>() && static_cast<const UClass*>(Object)->HasAnyClassFlags(CLASS_CompiledFromBlueprint)))
		{
			return true;
		}
	}
	return false;
}
