#include "UObject/ObjectInitializer.h"

#include "DeclaredSubobjects.h"
#include "UObject/Package.h"
#include "UObject/UnrealType.h"

namespace
{
FObjectInitializer* GTopInitializer = nullptr;

constexpr uint64 TransientFlags = CPF_Transient | CPF_DuplicateTransient | CPF_NonPIEDuplicateTransient;

/** Points an instance's copies of its template's references at the instance's own parts. */
class FPartInstancer final : public FReferenceCollector
{
public:
	FPartInstancer(FObjectInstancingGraph& InGraph, UObject* InInstance, const UObject* InTemplate)
		: Graph(InGraph)
		, Instance(InInstance)
		, Template(InTemplate)
	{
	}

	void Run()
	{
		const bool bLoading = Instance->HasAnyFlags(RF_NeedLoad);
		for (FProperty* Property = Instance->GetClass()->RefLink; Property; Property = Property->NextRef)
		{
			bIsInstanced = Property->ContainsInstancedObjectProperty();
			bMayMakeParts = !bLoading && bIsInstanced;
			Property->CollectReferences(Property->ContainerPtrToValuePtr<void>(Instance), *this, Instance);
		}
	}

protected:
	void HandleObjectReference(UObject*& Object, const UObject* ReferencingObject, const FProperty* ReferencingProperty) override
	{
		UObject* const Known = Object ? Graph.GetDestinationObject(Object) : nullptr;
		// A part's instanced reference may lead out of it, to another part of what is being made.
		if (Known && bIsInstanced)
		{
			Object = Known;
			return;
		}
		if (!Object || !Object->IsIn(Template))
		{
			return;
		}
		if (Known)
		{
			Object = Known;
		}
		else if (bMayMakeParts || StaticFindObjectFast(nullptr, Instance, Object->GetFName()))
		{
			if (UObject* const Part = Graph.InstancePart(Object, Instance, Template))
			{
				Object = Part;
			}
		}
	}

private:
	FObjectInstancingGraph& Graph;
	UObject* Instance;
	const UObject* Template;
	bool bIsInstanced = false;
	bool bMayMakeParts = false;
};

/** A C++ constructor gives no values to members that were added to the class's supers at run time; the super's default object has them. */
void InheritRunTimeMembers(UObject* Defaults, const UClass* Super, const UObject* SuperDefaults)
{
	for (const FProperty* Property = Super->PostConstructLink; Property && SuperDefaults; Property = Property->PostConstructLinkNext)
	{
		if (HasRunTimeStorage(Property))
		{
			Property->CopyCompleteValue_InContainer(Defaults, SuperDefaults);
		}
	}
}

void CopyValues(UObject* Instance, const UObject* Source)
{
	for (const FProperty* Property = Instance->GetClass()->PropertyLink; Property; Property = Property->PropertyLinkNext)
	{
		if (Property->IsInContainer(Source->GetClass()) &&
			(!Property->HasAnyPropertyFlags(TransientFlags) || !Property->ContainsInstancedObjectProperty()))
		{
			Property->CopyCompleteValue_InContainer(Instance, Source);
		}
	}
}

/** Gives a part that is there already the values of its template; what was loaded has its own. */
void FillPart(FObjectInstancingGraph& Graph, UObject* Part, const UObject* TemplatePart)
{
	if (Part->GetClass()->IsChildOf(TemplatePart->GetClass()) && !Part->HasAnyFlags(RF_WasLoaded))
	{
		CopyValues(Part, TemplatePart);
		FPartInstancer(Graph, Part, TemplatePart).Run();
	}
}
}

FObjectInstancingGraph::FObjectInstancingGraph(UObject* DestinationSubobjectRoot, bool bInCreatingArchetype)
{
	if (DestinationSubobjectRoot)
	{
		AddNewInstance(DestinationSubobjectRoot, DestinationSubobjectRoot->GetArchetype());
	}
}

void FObjectInstancingGraph::AddNewInstance(UObject* ObjectInstance, UObject* Template)
{
	TemplateToInstance.Add(Template, ObjectInstance);
}

UObject* FObjectInstancingGraph::GetDestinationObject(const UObject* SourceObject) const
{
	UObject* const* const Found = TemplateToInstance.Find(SourceObject);
	return Found ? *Found : nullptr;
}

UObject* FObjectInstancingGraph::InstancePart(UObject* TemplatePart, UObject* Instance, const UObject* Template)
{
	if (UObject* const Known = GetDestinationObject(TemplatePart))
	{
		return Known;
	}
	// A part of a part: its outer's counterpart comes first.
	UObject* Outer = Instance;
	if (TemplatePart->GetOuter() != Template)
	{
		Outer = InstancePart(TemplatePart->GetOuter(), Instance, Template);
	}
	if (!Outer)
	{
		return nullptr;
	}
	UObject* const Existing = StaticFindObjectFast(nullptr, Outer, TemplatePart->GetFName());
	if (!Existing)
	{
		FStaticConstructObjectParameters Params(TemplatePart->GetClass());
		Params.Outer = Outer;
		Params.Name = TemplatePart->GetFName();
		Params.SetFlags = static_cast<EObjectFlags>(TemplatePart->GetMaskedFlags(static_cast<EObjectFlags>(
														RF_Public | RF_Transactional | RF_DefaultSubObject | RF_TextExportTransient)) |
			Outer->GetMaskedFlags(RF_PropagateToSubObjects));
		Params.Template = TemplatePart;
		Params.InstanceGraph = this;
		UObject* const Made = StaticConstructObject_Internal(Params);
		if (Made)
		{
			AddNewInstance(Made, TemplatePart);
		}
		return Made;
	}
	AddNewInstance(Existing, TemplatePart);
	FillPart(*this, Existing, TemplatePart);
	return Existing;
}

FObjectInitializer::FObjectInitializer()
	: bShouldInitializePropsFromArchetype(false)
{
}

FObjectInitializer::FObjectInitializer(UObject* InObj, const FStaticConstructObjectParameters& Params)
	: Obj(InObj)
	, ObjectArchetype(Params.Template)
	, bCopyTransientsFromClassDefaults(Params.bCopyTransientsFromClassDefaults)
	, InstanceGraph(Params.InstanceGraph)
	, PropertyInitCallback(Params.PropertyInitCallback)
	, Previous(GTopInitializer)
{
	GTopInitializer = this;
}

FObjectInitializer::FObjectInitializer(
	UObject* InObj, UObject* InObjectArchetype, EObjectInitializerOptions InOptions, FObjectInstancingGraph* InInstanceGraph)
	: Obj(InObj)
	, ObjectArchetype(InObjectArchetype)
	, bCopyTransientsFromClassDefaults(EnumHasAnyFlags(InOptions, EObjectInitializerOptions::CopyTransientsFromClassDefaults))
	, bShouldInitializePropsFromArchetype(EnumHasAnyFlags(InOptions, EObjectInitializerOptions::InitializeProperties))
	, InstanceGraph(InInstanceGraph)
	, Previous(GTopInitializer)
{
	GTopInitializer = this;
}

FObjectInitializer::~FObjectInitializer()
{
	if (!Obj)
	{
		return;
	}
	check(GTopInitializer == this);
	GTopInitializer = Previous;
	PostConstructInit();
}

FObjectInitializer& FObjectInitializer::Get()
{
	checkf(GTopInitializer, TEXT("No object is being constructed"));
	return *GTopInitializer;
}

UClass* FObjectInitializer::GetClass() const
{
	return Obj->GetClass();
}

const FObjectInitializer& FObjectInitializer::SetDefaultSubobjectClass(FName SubobjectName, const UClass* Class) const
{
	// Constructors of derived classes come here first, so an override that stands already wins.
	if (!SubobjectOverrides.Contains(SubobjectName))
	{
		SubobjectOverrides.Add(SubobjectName, Class);
	}
	return *this;
}

const FObjectInitializer& FObjectInitializer::DoNotCreateDefaultSubobject(FName SubobjectName) const
{
	return SetDefaultSubobjectClass(SubobjectName, static_cast<const UClass*>(nullptr));
}

UObject* FObjectInitializer::CreateDefaultSubobject(UObject* Outer, FName SubobjectFName, const UClass* ReturnType,
	const UClass* ClassToCreateByDefault, bool bIsRequired, bool bIsTransient) const
{
	checkf(Outer == Obj, TEXT("Default sub-objects are made in their outer's own constructor: %s"), *GetFullNameSafe(Outer));
	const UClass* const* const Override = SubobjectOverrides.Find(SubobjectFName);
	const UClass* Class = Override ? *Override : ClassToCreateByDefault;
	if (!Class && bIsRequired)
	{
		UE_LOG(LogUObjectGlobals, Warning, TEXT("The sub-object %s of %s is required and cannot be left out."),
			*SubobjectFName.ToString(), *Obj->GetFullName());
		Class = ClassToCreateByDefault;
	}
	if (Class && !Class->IsChildOf(ReturnType))
	{
		UE_LOG(LogUObjectGlobals, Error, TEXT("Sub-object %s of %s cannot be a %s: it is no %s."), *SubobjectFName.ToString(),
			*Obj->GetFullName(), *Class->GetName(), *ReturnType->GetName());
		Class = ClassToCreateByDefault;
	}
	if (!Class || Class->HasAnyClassFlags(CLASS_Abstract))
	{
		return nullptr;
	}

	FStaticConstructObjectParameters Params(Class);
	Params.Outer = Outer;
	Params.Name = SubobjectFName;
	Params.SetFlags = static_cast<EObjectFlags>(
		RF_DefaultSubObject | Outer->GetMaskedFlags(RF_PropagateToSubObjects) | (bIsTransient ? RF_Transient : RF_NoFlags));
	if (Outer->HasAnyFlags(RF_ClassDefaultObject))
	{
		Params.SetFlags = static_cast<EObjectFlags>(Params.SetFlags | RF_ArchetypeObject | RF_Public);
	}
	return StaticConstructObject_Internal(Params);
}

void FObjectInitializer::PostConstructInit()
{
	UClass* const Class = Obj->GetClass();
	const bool bIsCDO = Obj->HasAnyFlags(RF_ClassDefaultObject);
	UClass* const Base = bIsCDO && Class->GetSuperClass() ? Class->GetSuperClass() : Class;
	// The default object of a declared class is what its constructor makes; all others are made from theirs.
	const bool bIsDeclared = bIsCDO && Class->bLaidOutAtRunTime;
	UObject* const Defaults = ObjectArchetype ? ObjectArchetype : Base->GetDefaultObject(false);
	for (const FProperty* Property = Class->PostConstructLink; Property; Property = Property->PostConstructLinkNext)
	{
		if (HasRunTimeStorage(Property))
		{
			Property->InitializeValue_InContainer(Obj);
		}
	}
	if (PropertyInitCallback)
	{
		PropertyInitCallback();
	}
	const FDeclaredSubobjects* const Subobjects = FDeclaredSubobjects::Find(Class);
	if (Subobjects)
	{
		Subobjects->Make(*this);
	}
	if (bShouldInitializePropsFromArchetype)
	{
		InitProperties(Base, Defaults);
		if (Subobjects && bIsDeclared)
		{
			Subobjects->SetMembers(Obj);
		}
		// A native object that starts from its class's own defaults has its constructor's values and parts already.
		if (Defaults && Defaults != Obj && !(IsNativeClass(Class) && Defaults == Class->GetDefaultObject(false)))
		{
			ObjectArchetype = Defaults;
			InstanceSubobjects();
		}
	}
	if (bIsCDO)
	{
		if (IsNativeClass(Class) && Base != Class)
		{
			InheritRunTimeMembers(Obj, Base, Defaults);
		}
		Class->ApplyOwnDeclaredDefaults(Obj);
	}
	if (Subobjects && bIsDeclared)
	{
		Subobjects->SetValues(Obj);
	}
	if (bIsCDO && Class->HasAnyClassFlags(CLASS_Config))
	{
		Obj->LoadConfig();
	}
	Obj->PostInitProperties();
	Class->PostInitInstance(Obj, InstanceGraph);
}

void FObjectInitializer::InitProperties(const UClass* DefaultsClass, const UObject* Defaults) const
{
	const UClass* const Class = Obj->GetClass();
	const bool bNative = IsNativeClass(Class);
	if (bNative && (!Defaults || Defaults == Class->GetDefaultObject(false)))
	{
		for (const FProperty* Property = Defaults ? Class->PostConstructLink : nullptr; Property;
			 Property = Property->PostConstructLinkNext)
		{
			Property->CopyCompleteValue_InContainer(Obj, Defaults);
		}
		return;
	}
	const UObject* const ClassDefaults = bCopyTransientsFromClassDefaults ? DefaultsClass->GetDefaultObject(false) : nullptr;
	for (const FProperty* Property = Class->PropertyLink; Property; Property = Property->PropertyLinkNext)
	{
		const bool bTransient = Property->HasAnyPropertyFlags(TransientFlags);
		if (bTransient && (ClassDefaults || Property->ContainsInstancedObjectProperty()))
		{
			if (ClassDefaults && !Property->ContainsInstancedObjectProperty() && Property->IsInContainer(DefaultsClass))
			{
				Property->CopyCompleteValue_InContainer(Obj, ClassDefaults);
			}
			continue;
		}
		if (Defaults && Property->IsInContainer(DefaultsClass) && Property->IsInContainer(Defaults->GetClass()))
		{
			Property->CopyCompleteValue_InContainer(Obj, Defaults);
		}
	}
}

void FObjectInitializer::InstanceSubobjects() const
{
	FObjectInstancingGraph OwnGraph;
	FObjectInstancingGraph& Graph = InstanceGraph ? *InstanceGraph : OwnGraph;
	Graph.AddNewInstance(Obj, ObjectArchetype);
	// Parts that the constructor made, whether a property holds them or not. All are known before one is filled: it may refer to others.
	TArray<UObject*> Parts;
	Obj->GetDefaultSubobjects(Parts);
	TArray<TPair<UObject*, const UObject*>> Pairs;
	for (UObject* const Part : Parts)
	{
		// The class of the object may make it of another class than its super does.
		UObject* const TemplatePart = StaticFindObjectFast(nullptr, ObjectArchetype, Part->GetFName());
		if (TemplatePart && Part->HasAnyFlags(RF_DefaultSubObject) && !Graph.GetDestinationObject(TemplatePart))
		{
			Graph.AddNewInstance(Part, TemplatePart);
			Pairs.Emplace(Part, TemplatePart);
		}
	}
	for (const TPair<UObject*, const UObject*>& Pair : Pairs)
	{
		FillPart(Graph, Pair.Key, Pair.Value);
	}
	FPartInstancer(Graph, Obj, ObjectArchetype).Run();
}

void UObject::InstanceSubobjectTemplates(FObjectInstancingGraph* InstanceGraph)
{
	UObject* const Archetype = GetArchetype();
	if (!Archetype || Archetype == this)
	{
		return;
	}
	FObjectInstancingGraph OwnGraph;
	FObjectInstancingGraph& Graph = InstanceGraph ? *InstanceGraph : OwnGraph;
	Graph.AddNewInstance(this, Archetype);
	FPartInstancer(Graph, this, Archetype).Run();
}

void UObject::ReinitializeProperties(UObject* SourceObject, FObjectInstancingGraph* InstanceGraph)
{
	UObject* const Source = SourceObject ? SourceObject : GetArchetype();
	CopyValues(this, Source);
	FObjectInstancingGraph OwnGraph;
	FObjectInstancingGraph& Graph = InstanceGraph ? *InstanceGraph : OwnGraph;
	Graph.AddNewInstance(this, Source);
	FPartInstancer(Graph, this, Source).Run();
	PostReinitProperties();
}
