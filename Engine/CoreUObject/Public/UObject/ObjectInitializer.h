#pragma once

#include "UObject/UObjectGlobals.h"

/** Maps the parts of a template onto the parts of an instance while that is being made. */
struct COREUOBJECT_API FObjectInstancingGraph
{
	FObjectInstancingGraph() = default;
	explicit FObjectInstancingGraph(UObject* DestinationSubobjectRoot, bool bInCreatingArchetype = false);

	/** Says which instance stands for a template from now on. */
	void AddNewInstance(UObject* ObjectInstance, UObject* Template);
	/** The instance that stands for the template, or null. */
	UObject* GetDestinationObject(const UObject* SourceObject) const;
	/** The part of Instance that stands for a part of its template: known, found by name, or made now. Null keeps the value. */
	UObject* InstancePart(UObject* TemplatePart, UObject* Instance, const UObject* Template);

private:
	TMap<const UObject*, UObject*> TemplateToInstance;
};

/**
 * The rest of construction: given to a class's constructor, which makes sub-objects through it; when it ends, values of the
 * archetype are set and sub-objects instanced.
 */
class COREUOBJECT_API FObjectInitializer
{
public:
	/** For an object whose values are left as the constructor set them. */
	FObjectInitializer();
	FObjectInitializer(UObject* InObj, const FStaticConstructObjectParameters& StaticConstructParams);
	FObjectInitializer(UObject* InObj, UObject* InObjectArchetype, EObjectInitializerOptions InOptions,
		FObjectInstancingGraph* InInstanceGraph = nullptr);
	~FObjectInitializer();
	FObjectInitializer(const FObjectInitializer&) = delete;
	FObjectInitializer& operator=(const FObjectInitializer&) = delete;

	/** The initializer of the object whose constructor is running. */
	static FObjectInitializer& Get();

	FORCEINLINE UObject* GetObj() const { return Obj; }
	UObject* GetArchetype() const { return ObjectArchetype; }
	UClass* GetClass() const;

	UObject* CreateDefaultSubobject(UObject* Outer, FName SubobjectFName, const UClass* ReturnType, const UClass* ClassToCreateByDefault,
		bool bIsRequired = true, bool bIsTransient = false) const;
	template <class TReturnType>
	TReturnType* CreateDefaultSubobject(UObject* Outer, FName SubobjectName, bool bTransient = false) const
	{
		UClass* const ReturnType = TReturnType::StaticClass();
		return static_cast<TReturnType*>(CreateDefaultSubobject(Outer, SubobjectName, ReturnType, ReturnType, true, bTransient));
	}
	template <class TReturnType, class TClassToConstructByDefault>
	TReturnType* CreateDefaultSubobject(UObject* Outer, FName SubobjectName, bool bTransient = false) const
	{
		return static_cast<TReturnType*>(CreateDefaultSubobject(
			Outer, SubobjectName, TReturnType::StaticClass(), TClassToConstructByDefault::StaticClass(), true, bTransient));
	}
	template <class TReturnType>
	TReturnType* CreateOptionalDefaultSubobject(UObject* Outer, FName SubobjectName, bool bTransient = false) const
	{
		UClass* const ReturnType = TReturnType::StaticClass();
		return static_cast<TReturnType*>(CreateDefaultSubobject(Outer, SubobjectName, ReturnType, ReturnType, false, bTransient));
	}
	template <class TReturnType>
	TReturnType* CreateEditorOnlyDefaultSubobject(UObject* Outer, FName SubobjectName, bool bTransient = false) const
	{
		return CreateOptionalDefaultSubobject<TReturnType>(Outer, SubobjectName, bTransient);
	}

	/** In an initializer list, before Super: makes the named sub-object of T instead. The most derived class decides. */
	template <class T>
	const FObjectInitializer& SetDefaultSubobjectClass(FName SubobjectName) const
	{
		return SetDefaultSubobjectClass(SubobjectName, T::StaticClass());
	}
	const FObjectInitializer& SetDefaultSubobjectClass(FName SubobjectName, const UClass* Class) const;
	/** In an initializer list: leaves an optional sub-object out. */
	const FObjectInitializer& DoNotCreateDefaultSubobject(FName SubobjectName) const;
	/** Whether instances are being made of a class whose default object is being made. */
	void FinalizeSubobjectClassInitialization() {}

private:
	void PostConstructInit();
	void InitProperties(const UClass* DefaultsClass, const UObject* Defaults) const;
	void InstanceSubobjects() const;

	UObject* Obj = nullptr;
	UObject* ObjectArchetype = nullptr;
	bool bCopyTransientsFromClassDefaults = false;
	bool bShouldInitializePropsFromArchetype = true;
	FObjectInstancingGraph* InstanceGraph = nullptr;
	TFunction<void()> PropertyInitCallback;
	/** Class null means: do not make it. */
	mutable TMap<FName, const UClass*> SubobjectOverrides;
	FObjectInitializer* Previous = nullptr;
};
