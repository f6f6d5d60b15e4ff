#include "BlueprintReinstancer.h"

#include "BlueprintActionDatabase.h"
#include "BlueprintClassBuilder.h"
#include "Components/SceneComponent.h"
#include "Engine/BlueprintGeneratedClass.h"
#include "Engine/InheritableComponentHandler.h"
#include "Engine/SimpleConstructionScript.h"
#include "GameFramework/Actor.h"
#include "Misc/ITransaction.h"
#include "UObject/LayoutTransfer.h"
#include "UObject/Package.h"
#include "UObject/PlaceholderObject.h"
#include "UObject/UObjectGlobals.h"
#include "UObject/UObjectHash.h"
#include "UObject/UnrealType.h"

namespace
{
constexpr ERenameFlagsType MoveFlags = REN_DontCreateRedirectors | REN_NonTransactional | REN_DoNotDirty | REN_ForceNoResetLoaders;

/** The old class's property that the new one continues: of the same id, else of the same name. */
const FProperty* FindOldProperty(const UClass& OldClass, const TMap<FName, FGuid>& OldGuids, const FProperty& NewProperty)
{
	const UBlueprintGeneratedClass* const NewClass = Cast<UBlueprintGeneratedClass>(NewProperty.GetOwnerClass());
	const FGuid Guid = NewClass ? NewClass->FindPropertyGuidFromName(NewProperty.GetFName()) : FGuid();
	if (Guid.IsValid())
	{
		for (const TPair<FName, FGuid>& Pair : OldGuids)
		{
			const FProperty* const Renamed = Pair.Value == Guid ? OldClass.FindPropertyByName(Pair.Key) : nullptr;
			if (Renamed)
			{
				return Renamed;
			}
		}
	}
	// A new variable may bear the name that another one, which was renamed, had before.
	const FGuid* const OldGuid = OldGuids.Find(NewProperty.GetFName());
	const bool bIsAnothers = OldGuid && NewClass && Guid != *OldGuid && !NewClass->FindPropertyNameFromGuid(*OldGuid).IsNone();
	return bIsAnothers ? nullptr : OldClass.FindPropertyByName(NewProperty.GetFName());
}

/** A skeleton derives from its parent's skeleton, which knows what was declared there since the last compile. */
UClass* FindSuperClass(const UBlueprint& Blueprint, const UBlueprintGeneratedClass& Class)
{
	UClass* const Parent = Blueprint.ParentClass.Get();
	const UBlueprint* const ParentBlueprint = UBlueprint::GetBlueprintFromClass(Parent);
	const bool bTakeSkeleton = Blueprint.SkeletonGeneratedClass.Get() == &Class && ParentBlueprint &&
		ParentBlueprint->SkeletonGeneratedClass;
	return bTakeSkeleton ? ParentBlueprint->SkeletonGeneratedClass.Get() : Parent;
}

/** Gives a placed actor's successor its components: anew what the Blueprint adds, and from the old actor what it was given itself. */
void ConstructActor(AActor& Old, AActor& New)
{
	TArray<const UBlueprintGeneratedClass*> Hierarchy;
	UBlueprintGeneratedClass::GetGeneratedClassesHierarchy(New.GetClass(), Hierarchy);
	for (int32 Index = Hierarchy.Num() - 1; Index >= 0; --Index)
	{
		if (USimpleConstructionScript* const Script = Hierarchy[Index]->SimpleConstructionScript)
		{
			Script->ExecuteScriptOnActor(&New);
		}
	}
	const FTransform Place = Old.GetActorTransform();
	USceneComponent* const OldRoot = Old.GetRootComponent();
	for (UActorComponent* const Component : Old.GetComponents())
	{
		const bool bIsOwn = Component->CreationMethod != EComponentCreationMethod::SimpleConstructionScript;
		if (bIsOwn && !StaticFindObjectFast(nullptr, &New, Component->GetFName()))
		{
			Component->Rename(nullptr, &New, MoveFlags);
		}
	}
	if (!New.GetRootComponent() && OldRoot->GetOwner() == &New)
	{
		New.SetRootComponent(OldRoot);
	}
	New.SetActorTransform(Place);
}
}

FBlueprintCompileReinstancer::FBlueprintCompileReinstancer(UBlueprint& Blueprint, UBlueprintGeneratedClass& Class)
{
	AddClassAndDerived(Blueprint, Class);
}

const UBlueprint* FBlueprintCompileReinstancer::FindRingOfParents(const UBlueprint& Blueprint)
{
	TSet<const UBlueprint*> Ancestors;
	for (const UBlueprint* Current = &Blueprint; Current; Current = UBlueprint::GetBlueprintFromClass(Current->ParentClass.Get()))
	{
		bool bIsTwice = false;
		Ancestors.Add(Current, &bIsTwice);
		if (bIsTwice)
		{
			return Current;
		}
	}
	return nullptr;
}

void FBlueprintCompileReinstancer::AddClassAndDerived(UBlueprint& Blueprint, UBlueprintGeneratedClass& Class)
{
	FRebuiltClass& Added = Classes.AddDefaulted_GetRef();
	Added.Blueprint = &Blueprint;
	Added.Class = &Class;
	TArray<UClass*> Derived;
	GetDerivedClasses(&Class, Derived, false);
	for (UClass* const DerivedClass : Derived)
	{
		UBlueprint* const DerivedBlueprint = UBlueprint::GetBlueprintFromClass(DerivedClass);
		UBlueprintGeneratedClass* const Generated = Cast<UBlueprintGeneratedClass>(DerivedClass);
		if (DerivedBlueprint && Generated && !Generated->HasAnyClassFlags(CLASS_NewerVersionExists))
		{
			AddClassAndDerived(*DerivedBlueprint, *Generated);
		}
	}
}

void FBlueprintCompileReinstancer::Rebuild(TArray<FString>& OutErrors)
{
	// What is made here is made of what a transaction remembers; to undo it on its own would leave classes without instances.
	const TGuardValue<ITransaction*> NotForUndo(GUndo, nullptr);
	for (FRebuiltClass& Rebuilt : Classes)
	{
		MoveOldLayoutAway(Rebuilt);
	}
	TArray<FString> DerivedErrors;
	for (int32 Index = 0; Index < Classes.Num(); ++Index)
	{
		TArray<FString>& Errors = Index == 0 ? OutErrors : DerivedErrors;
		BuildClass(Classes[Index], Errors);
		CreateNewDefaultObject(Classes[Index], Errors);
	}
	ReplaceObjects();
	if (FBlueprintActionDatabase* const Actions = FBlueprintActionDatabase::TryGet())
	{
		for (const FRebuiltClass& Rebuilt : Classes)
		{
			Actions->RefreshAssetActions(Rebuilt.Blueprint);
		}
	}
}

void FBlueprintCompileReinstancer::MoveOldLayoutAway(FRebuiltClass& Rebuilt)
{
	UBlueprintGeneratedClass& Class = *Rebuilt.Class;
	Rebuilt.OldPropertyGuids = Class.PropertyGuids;
	Rebuilt.OldDefaultObject = Class.GetDefaultObject(false);
	GetObjectsOfClass(&Class, Rebuilt.OldInstances, false);

	UObject* const Transient = GetTransientPackageAsObject();
	const FName OldName = MakeUniqueObjectName(Transient, Class.GetClass(), FName(*(TEXT("REINST_") + Class.GetName())));
	UBlueprintGeneratedClass* const OldClass = NewObject<UBlueprintGeneratedClass>(Transient, Class.GetClass(), OldName, RF_Transient);
	Rebuilt.OldClass = OldClass;
	const FRebuiltClass* const RebuiltSuper = Classes.FindByPredicate([&Class](const FRebuiltClass& Other)
		{ return Other.Class == Class.GetSuperClass(); });
	OldClass->SetSuperStruct(RebuiltSuper ? RebuiltSuper->OldClass : Class.GetSuperClass());
	OldClass->ClassConstructor = Class.ClassConstructor;
	OldClass->ClassAddReferencedObjects = Class.ClassAddReferencedObjects;
	OldClass->ClassFlags = Class.ClassFlags | CLASS_NewerVersionExists;
	OldClass->ClassCastFlags = Class.ClassCastFlags;
	OldClass->ClassWithin = Class.ClassWithin;
	OldClass->ChildProperties = Class.ChildProperties;
	// Components of old actors keep the archetypes that tell what was given to them themselves.
	OldClass->SimpleConstructionScript = Class.SimpleConstructionScript;
	OldClass->InheritableComponentHandler = Class.InheritableComponentHandler;
	OldClass->PropertiesSize = Class.PropertiesSize;
	OldClass->MinAlignment = Class.MinAlignment;
	Class.ChildProperties = nullptr;
	for (FField* Field = OldClass->ChildProperties; Field; Field = Field->Next)
	{
		Field->Owner = OldClass;
	}
	OldClass->Children = Class.Children;
	for (UField* Child = OldClass->Children; Child; Child = Child->Next)
	{
		Child->Rename(nullptr, OldClass, MoveFlags);
	}
	OldClass->StaticLink(false);

	if (Rebuilt.OldDefaultObject)
	{
		Rebuilt.OldDefaultObject->Rename(*MakeUniqueObjectName(Transient, OldClass).ToString(), Transient, MoveFlags);
		MoveObjectToClass(*Rebuilt.OldDefaultObject, *OldClass);
		OldClass->SetDefaultObject(Rebuilt.OldDefaultObject);
	}
	for (UObject* const Instance : Rebuilt.OldInstances)
	{
		MoveObjectToClass(*Instance, *OldClass);
	}
}

void FBlueprintCompileReinstancer::BuildClass(FRebuiltClass& Rebuilt, TArray<FString>& OutErrors)
{
	UBlueprint& Blueprint = *Rebuilt.Blueprint;
	UBlueprintGeneratedClass& Class = *Rebuilt.Class;
	UClass* const SuperClass = FindSuperClass(Blueprint, Class);
	Class.PurgeClass(false);
	Class.PropertyGuids.Empty();
	Class.SetSuperStruct(SuperClass);
	Class.ClassGeneratedBy = &Blueprint;
	Class.ClassFlags = CLASS_CompiledFromBlueprint | (Blueprint.bGenerateAbstractClass ? CLASS_Abstract : CLASS_None) |
		(Blueprint.bDeprecate ? CLASS_Deprecated : CLASS_None) |
		(Blueprint.BlueprintType == BPTYPE_Interface ? CLASS_Interface | CLASS_Abstract : CLASS_None);
	Class.Bind();
	FBlueprintClassBuilder(Blueprint, Class).Build(OutErrors);
	Class.StaticLink(true);
	Class.SimpleConstructionScript = Blueprint.SimpleConstructionScript;
	Class.ComponentTemplates = Blueprint.ComponentTemplates;
	Class.Timelines = Blueprint.Timelines;
	Class.InheritableComponentHandler = Blueprint.InheritableComponentHandler;
	if (Class.InheritableComponentHandler && Blueprint.GeneratedClass.Get() == &Class)
	{
		Class.InheritableComponentHandler->FollowParents();
	}
}

void FBlueprintCompileReinstancer::TransferValues(UObject& From, UObject& To, const TMap<FName, FGuid>& OldGuids)
{
	const auto FindOld = [&From, &OldGuids](const FProperty& Property)
	{ return FindOldProperty(*From.GetClass(), OldGuids, Property); };
	UE::CoreUObject::TransferValues(From, To, FindOld, Replacements);
}

namespace
{
/** The values that default objects had for variables that were removed since, as text by the variable's id: an undo may bring one back. */
TMap<FGuid, FString>& GetLostDefaults()
{
	static TMap<FGuid, FString> Values;
	return Values;
}

void RememberLostDefaults(const UObject& Old, const UBlueprintGeneratedClass& NewClass, const TMap<FName, FGuid>& OldGuids)
{
	constexpr int32 MaxValues = 10000;
	TMap<FGuid, FString>& Lost = GetLostDefaults();
	for (const TPair<FName, FGuid>& Pair : OldGuids)
	{
		const bool bIsLost = Pair.Value.IsValid() && NewClass.FindPropertyNameFromGuid(Pair.Value).IsNone();
		const FProperty* const Property = bIsLost ? Old.GetClass()->FindPropertyByName(Pair.Key) : nullptr;
		if (!Property)
		{
			continue;
		}
		FString Text;
		Property->ExportTextItem_InContainer(Text, &Old, nullptr, nullptr, PPF_None);
		if (Lost.Num() >= MaxValues)
		{
			Lost.Empty();
		}
		Lost.Add(Pair.Value, Text);
	}
}

void ReturnLostDefaults(UObject& New, const UBlueprintGeneratedClass& NewClass)
{
	TMap<FGuid, FString>& Lost = GetLostDefaults();
	for (const TPair<FName, FGuid>& Pair : NewClass.PropertyGuids)
	{
		FString Text;
		const FProperty* const Property = Lost.Num() > 0 && Lost.RemoveAndCopyValue(Pair.Value, Text)
			? NewClass.FindPropertyByName(Pair.Key)
			: nullptr;
		if (Property)
		{
			Property->ImportText_InContainer(*Text, &New, &New, PPF_None);
		}
	}
}
}

void FBlueprintCompileReinstancer::CreateNewDefaultObject(FRebuiltClass& Rebuilt, TArray<FString>& OutErrors)
{
	UObject* const NewDefaultObject = Rebuilt.Class->GetDefaultObject();
	// What a user edits as the class's defaults, its parts included.
	TArray<UObject*> Edited;
	NewDefaultObject->GetDefaultSubobjects(Edited);
	Edited.Add(NewDefaultObject);
	for (UObject* const Object : Edited)
	{
		Object->SetFlags(RF_Transactional);
	}
	ApplyVariableDefaults(Rebuilt, OutErrors);
	if (Rebuilt.OldDefaultObject)
	{
		TransferValues(*Rebuilt.OldDefaultObject, *NewDefaultObject, GetOldPropertyGuids(Rebuilt));
		ApplyDefaultsOfRetyped(Rebuilt);
	}
	const bool bIsWhatUsersEdit = Rebuilt.Blueprint->GeneratedClass.Get() == Rebuilt.Class;
	if (Rebuilt.OldDefaultObject && bIsWhatUsersEdit)
	{
		RememberLostDefaults(*Rebuilt.OldDefaultObject, *Rebuilt.Class, Rebuilt.OldPropertyGuids);
		ReturnLostDefaults(*NewDefaultObject, *Rebuilt.Class);
	}
}

TMap<FName, FGuid> FBlueprintCompileReinstancer::GetOldPropertyGuids(const FRebuiltClass& Rebuilt) const
{
	TMap<FName, FGuid> Guids;
	for (const FRebuiltClass& Other : Classes)
	{
		if (Rebuilt.Class->IsChildOf(Other.Class))
		{
			Guids.Append(Other.OldPropertyGuids);
		}
	}
	return Guids;
}

void FBlueprintCompileReinstancer::ApplyVariableDefaults(const FRebuiltClass& Rebuilt, TArray<FString>& OutErrors)
{
	UObject* const Defaults = Rebuilt.Class->GetDefaultObject();
	for (const FBPVariableDescription& Variable : Rebuilt.Blueprint->NewVariables)
	{
		const FProperty* const Property = Variable.DefaultValue.IsEmpty() ? nullptr
																		  : FindFProperty<FProperty>(Rebuilt.Class, Variable.VarName);
		if (Property &&
			!Property->ImportText_Direct(*Variable.DefaultValue, Property->ContainerPtrToValuePtr<void>(Defaults), Defaults, PPF_None))
		{
			OutErrors.Add(FString::Printf(
				TEXT("The default value of %s could not be read: %s"), *Variable.VarName.ToString(), *Variable.DefaultValue.Left(128)));
		}
	}
}

void FBlueprintCompileReinstancer::ApplyDefaultsOfRetyped(const FRebuiltClass& Rebuilt)
{
	const TMap<FName, FGuid> OldGuids = GetOldPropertyGuids(Rebuilt);
	UObject* const Defaults = Rebuilt.Class->GetDefaultObject();
	for (const FBPVariableDescription& Variable : Rebuilt.Blueprint->NewVariables)
	{
		const FProperty* const Property = Variable.DefaultValue.IsEmpty() ? nullptr
																		  : FindFProperty<FProperty>(Rebuilt.Class, Variable.VarName);
		const FProperty* const Old = Property ? FindOldProperty(*Rebuilt.OldClass, OldGuids, *Property) : nullptr;
		if (Old && !Old->SameType(Property))
		{
			Property->ImportText_Direct(*Variable.DefaultValue, Property->ContainerPtrToValuePtr<void>(Defaults), Defaults, PPF_None);
		}
	}
}

bool FBlueprintCompileReinstancer::AreSkeletonsWithoutInstances() const
{
	return !Classes.ContainsByPredicate([](const FRebuiltClass& Rebuilt)
		{ return Rebuilt.Blueprint->SkeletonGeneratedClass.Get() != Rebuilt.Class || !Rebuilt.OldInstances.IsEmpty(); });
}

TSet<UPackage*> FBlueprintCompileReinstancer::FindUneditedPackages() const
{
	TSet<UPackage*> Packages;
	for (const FRebuiltClass& Rebuilt : Classes)
	{
		for (const UObject* const Instance : Rebuilt.OldInstances)
		{
			UPackage* const Package = Instance->GetPackage();
			if (Package && !Package->IsDirty())
			{
				Packages.Add(Package);
			}
		}
	}
	return Packages;
}

void FBlueprintCompileReinstancer::ReplaceObjects()
{
	// An actor that is made again is as it was; nobody has edited its level.
	const TSet<UPackage*> Unedited = FindUneditedPackages();
	UObject* const Transient = GetTransientPackageAsObject();
	for (FRebuiltClass& Rebuilt : Classes)
	{
		if (Rebuilt.OldDefaultObject)
		{
			Replacements.Add(Rebuilt.OldDefaultObject, Rebuilt.Class->GetDefaultObject());
		}
		for (UObject* const Old : Rebuilt.OldInstances)
		{
			UObject* const Outer = Old->GetOuter();
			const FName Name = Old->GetFName();
			const EObjectFlags Flags = Old->GetMaskedFlags(
				RF_Public | RF_Standalone | RF_Transactional | RF_Transient | RF_ArchetypeObject | RF_InheritableComponentTemplate);
			Old->Rename(*MakeUniqueObjectName(Transient, Rebuilt.OldClass).ToString(), Transient, MoveFlags);
			UObject* const New = NewObject<UObject>(Outer, Rebuilt.Class, Name, Flags);
			if (AActor* const OldActor = Cast<AActor>(Old); OldActor && OldActor->GetRootComponent())
			{
				ConstructActor(*OldActor, *CastChecked<AActor>(New));
			}
			TransferValues(*Old, *New, GetOldPropertyGuids(Rebuilt));
			Replacements.Add(Old, New);
		}
	}
	// To look through every object takes long, and skeletons are made again at every edit.
	if (Replacements.Num() > 0 && !AreSkeletonsWithoutInstances())
	{
		UE::CoreUObject::ReplaceObjectReferences(Replacements);
	}
	for (const TPair<UObject*, UObject*>& Pair : Replacements)
	{
		Pair.Key->ClearFlags(RF_Standalone | RF_Public | RF_ClassDefaultObject);
		Pair.Key->MarkAsGarbage();
	}
	for (UPackage* const Package : Unedited)
	{
		Package->SetDirtyFlag(false);
	}
}
