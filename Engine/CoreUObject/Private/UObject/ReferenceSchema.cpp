#include "UObject/GarbageCollectionSchema.h"

#include "ReferenceSchemaVisit.h"
#include "UObject/ReferenceCollector.h"
#include "UObject/UObjectGlobals.h"
#include "UObject/UnrealType.h"

void FReferenceSchema::AddStruct(const UStruct* Struct, int32 BaseOffset)
{
	for (const FProperty* Property = Struct->RefLink; Property; Property = Property->NextRef)
	{
		AddProperty(Property, BaseOffset);
	}
	const UScriptStruct* const ScriptStruct =
		Struct->GetClass()->HasAnyCastFlag(CASTCLASS_UScriptStruct) ? static_cast<const UScriptStruct*>(Struct) : nullptr;
	ICppStructOps* const Ops = ScriptStruct ? ScriptStruct->GetCppStructOps() : nullptr;
	if (Ops && Ops->HasAddStructReferencedObjects())
	{
		FMember Member{EKind::StructFunction, BaseOffset};
		Member.Function = Ops->AddStructReferencedObjects();
		Members.Add(Member);
	}
}

void FReferenceSchema::AddProperty(const FProperty* Property, int32 BaseOffset)
{
	const int32 Offset = BaseOffset + Property->GetOffset_ForGC();
	const FStructProperty* const StructProperty = CastField<FStructProperty>(Property);
	const FArrayProperty* const ArrayProperty = CastField<FArrayProperty>(Property);
	const FStructProperty* const StructInner = ArrayProperty ? CastField<FStructProperty>(ArrayProperty->Inner) : nullptr;
	for (int32 Index = 0; Index < Property->ArrayDim; ++Index)
	{
		const int32 ElementOffset = Offset + Index * Property->GetElementSize();
		if (StructProperty)
		{
			AddStruct(StructProperty->Struct, ElementOffset);
			continue;
		}
		FMember Member{EKind::Property, ElementOffset};
		Member.Property = Property;
		if (CastField<FObjectProperty>(Property))
		{
			Member.Kind = EKind::Object;
		}
		else if (ArrayProperty && CastField<FObjectProperty>(ArrayProperty->Inner))
		{
			Member.Kind = EKind::ObjectArray;
		}
		else if (StructInner && StructInner->ArrayDim == 1)
		{
			Member.Kind = EKind::StructArray;
			Member.Stride = StructInner->GetElementSize();
			Member.ElementStruct = StructInner->Struct;
		}
		Members.Add(Member);
	}
}

void FReferenceSchema::Visit(void* Data, FReferenceCollector& Collector, const UObject* ReferencingObject) const
{
	const auto Handle = [&Collector, ReferencingObject](UObject*& Object, const FProperty* Property)
	{ Collector.AddReferencedObject(Object, ReferencingObject, Property); };
	VisitReferences(*this, Data, Collector, ReferencingObject, Handle);
}

void FReferenceCollector::AddReferencedObjects(
	const UScriptStruct*& ScriptStruct, void* StructMemory, const UObject* ReferencingObject, const FProperty* ReferencingProperty)
{
	AddReferencedObject(ScriptStruct, ReferencingObject, ReferencingProperty);
	AddPropertyReferencesWithStructARO(ScriptStruct, StructMemory, ReferencingObject);
}

void FReferenceCollector::AddPropertyReferences(const UScriptStruct* Struct, void* Instance, const UObject* ReferencingObject)
{
	AddPropertyReferencesWithStructARO(Struct, Instance, ReferencingObject);
}

void FReferenceCollector::AddPropertyReferencesWithStructARO(const UStruct* Struct, void* Instance, const UObject* ReferencingObject)
{
	if (Struct)
	{
		Struct->GetReferenceSchema().Visit(Instance, *this, ReferencingObject);
	}
}

FReferenceFinder::FReferenceFinder(TArray<UObject*>& InObjectArray, UObject* InOuter, bool bInRequireDirectOuter,
	bool bInShouldIgnoreArchetype, bool bInSerializeRecursively, bool bInShouldIgnoreTransient)
	: ObjectArray(InObjectArray)
	, LimitOuter(InOuter)
	, bRequireDirectOuter(bInRequireDirectOuter)
	, bShouldIgnoreArchetype(bInShouldIgnoreArchetype)
	, bSerializeRecursively(bInSerializeRecursively && InOuter)
{
	for (UObject* const Object : ObjectArray)
	{
		ObjectSet.Add(Object);
	}
}

void FReferenceFinder::FindReferences(UObject* Object, UObject* ReferencingObject, FProperty* ReferencingProperty)
{
	const UClass* const Class = Object->GetClass();
	Class->GetReferenceSchema().Visit(Object, *this, Object);
	if (Class->ClassAddReferencedObjects)
	{
		Class->ClassAddReferencedObjects(Object, *this);
	}
}

void FReferenceFinder::HandleObjectReference(UObject*& InObject, const UObject* InReferencingObject, const FProperty* InReferencingProperty)
{
	UObject* const Object = InObject;
	if (!Object || (LimitOuter && !(Object->GetOuter() == LimitOuter || (!bRequireDirectOuter && Object->IsIn(LimitOuter)))))
	{
		return;
	}
	if (ObjectSet.Contains(Object))
	{
		return;
	}
	ObjectSet.Add(Object);
	ObjectArray.Add(Object);
	if (bSerializeRecursively)
	{
		FindReferences(Object);
	}
}
