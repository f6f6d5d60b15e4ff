#include "Subsystems/SubsystemCollection.h"

#include "Subsystems/Subsystem.h"
#include "UObject/UObjectGlobals.h"
#include "UObject/UObjectHash.h"

FSubsystemCollectionBase::FSubsystemCollectionBase(UClass* InBaseType)
	: BaseType(InBaseType)
{
}

FSubsystemCollectionBase::~FSubsystemCollectionBase() = default;

void FSubsystemCollectionBase::Initialize(UObject* NewOuter)
{
	check(NewOuter && !Outer);
	Outer = NewOuter;
	TArray<UClass*> Classes;
	GetDerivedClasses(BaseType, Classes, true);
	for (UClass* const Class : Classes)
	{
		AddAndInitializeSubsystem(Class);
	}
}

void FSubsystemCollectionBase::Deinitialize()
{
	for (int32 Index = InitializationOrder.Num() - 1; Index >= 0; --Index)
	{
		InitializationOrder[Index]->Deinitialize();
	}
	InitializationOrder.Empty();
	SubsystemMap.Empty();
	Outer = nullptr;
}

USubsystem* FSubsystemCollectionBase::InitializeDependency(TSubclassOf<USubsystem> SubsystemClass)
{
	UClass* const Class = SubsystemClass.Get();
	if (!Class || !Outer || !Class->IsChildOf(BaseType))
	{
		return nullptr;
	}
	return AddAndInitializeSubsystem(Class);
}

USubsystem* FSubsystemCollectionBase::AddAndInitializeSubsystem(UClass* SubsystemClass)
{
	if (const TObjectPtr<USubsystem>* const Existing = SubsystemMap.Find(SubsystemClass))
	{
		return *Existing;
	}
	if (SubsystemClass->HasAnyClassFlags(CLASS_Abstract) || !SubsystemClass->GetDefaultObject<USubsystem>()->ShouldCreateSubsystem(Outer))
	{
		return nullptr;
	}
	USubsystem* const Subsystem = NewObject<USubsystem>(Outer, SubsystemClass);
	SubsystemMap.Add(SubsystemClass, Subsystem);
	Subsystem->Initialize(*this);
	// Behind those that its Initialize brought up, which must outlive it.
	InitializationOrder.Add(Subsystem);
	return Subsystem;
}

USubsystem* FSubsystemCollectionBase::GetSubsystemInternal(UClass* SubsystemClass) const
{
	if (const TObjectPtr<USubsystem>* const Exact = SubsystemMap.Find(SubsystemClass))
	{
		return *Exact;
	}
	for (USubsystem* const Subsystem : InitializationOrder)
	{
		if (Subsystem->IsA(SubsystemClass))
		{
			return Subsystem;
		}
	}
	return nullptr;
}

void FSubsystemCollectionBase::AddReferencedObjects(FReferenceCollector& Collector)
{
	for (TPair<TObjectPtr<UClass>, TObjectPtr<USubsystem>>& Pair : SubsystemMap)
	{
		Collector.AddReferencedObject(Pair.Value);
	}
}
