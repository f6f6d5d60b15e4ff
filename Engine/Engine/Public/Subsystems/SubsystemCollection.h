#pragma once

#include "CoreMinimal.h"
#include "Templates/SubclassOf.h"
#include "UObject/GCObject.h"

class USubsystem;

/** The subsystems of one owner, one of each class, from Initialize to Deinitialize. */
class ENGINE_API FSubsystemCollectionBase : public FGCObject
{
public:
	virtual ~FSubsystemCollectionBase();

	/** Makes and initialises every concrete reflected class of the base type that wants to exist. */
	void Initialize(UObject* NewOuter);
	/** Deinitialises in the reverse order of initialisation. */
	void Deinitialize();
	/** For a subsystem's Initialize: brings the other one up first. Null when that class does not want to exist. */
	USubsystem* InitializeDependency(TSubclassOf<USubsystem> SubsystemClass);
	template <typename TSubsystemClass>
	TSubsystemClass* InitializeDependency()
	{
		return static_cast<TSubsystemClass*>(InitializeDependency(TSubsystemClass::StaticClass()));
	}

	USubsystem* GetSubsystemInternal(UClass* SubsystemClass) const;

	virtual void AddReferencedObjects(FReferenceCollector& Collector) override;
	virtual FString GetReferencerName() const override { return TEXT("FSubsystemCollectionBase"); }

protected:
	explicit FSubsystemCollectionBase(UClass* InBaseType);

private:
	USubsystem* AddAndInitializeSubsystem(UClass* SubsystemClass);

	UClass* BaseType;
	UObject* Outer = nullptr;
	TMap<TObjectPtr<UClass>, TObjectPtr<USubsystem>> SubsystemMap;
	TArray<USubsystem*> InitializationOrder;
};

/** The subsystems of one kind. */
template <typename TBaseType>
class FSubsystemCollection : public FSubsystemCollectionBase
{
public:
	FSubsystemCollection()
		: FSubsystemCollectionBase(TBaseType::StaticClass())
	{
	}

	template <typename TSubsystemClass>
	TSubsystemClass* GetSubsystem(const TSubclassOf<TSubsystemClass>& SubsystemClass) const
	{
		return static_cast<TSubsystemClass*>(GetSubsystemInternal(SubsystemClass.Get()));
	}
};
