#pragma once

#include "CoreMinimal.h"
#include "UObject/Object.h"
#include "UObject/ObjectPtr.h"
#include "UObject/WeakObjectPtrTemplates.h"

class FProperty;
class UScriptStruct;

/** Receives the references that an object, a struct or a holder has. The collection's own nulls those to objects given up. */
class COREUOBJECT_API FReferenceCollector
{
public:
	virtual ~FReferenceCollector() = default;

	template <class UObjectType>
	requires std::is_convertible_v<UObjectType*, const UObject*>
	void AddReferencedObject(
		UObjectType*& Object, const UObject* ReferencingObject = nullptr, const FProperty* ReferencingProperty = nullptr)
	{
		HandleObjectReference(*reinterpret_cast<UObject**>(const_cast<std::remove_const_t<UObjectType>**>(&Object)), ReferencingObject,
			ReferencingProperty);
	}
	template <class UObjectType>
	void AddReferencedObject(
		TObjectPtr<UObjectType>& Object, const UObject* ReferencingObject = nullptr, const FProperty* ReferencingProperty = nullptr)
	{
		HandleObjectReference(*reinterpret_cast<UObject**>(&Object), ReferencingObject, ReferencingProperty);
	}
	template <class UObjectType>
	void AddReferencedObject(
		TWeakObjectPtr<UObjectType>& Object, const UObject* ReferencingObject = nullptr, const FProperty* ReferencingProperty = nullptr)
	{
		UObject* Value = (UObject*)Object.Get(true);
		HandleObjectReference(Value, ReferencingObject, ReferencingProperty);
	}
	/** For a reference that must stay although its object is given up. */
	template <class UObjectType>
	void AddStableReference(TObjectPtr<UObjectType>* Object)
	{
		HandleStableReference(*reinterpret_cast<UObject**>(Object));
	}
	template <class ContainerType>
	void AddReferencedObjects(ContainerType& Objects, const UObject* ReferencingObject = nullptr,
		const FProperty* ReferencingProperty = nullptr) requires requires
	{
		Objects.begin();
	}
	{
		for (auto& Object : Objects)
		{
			if constexpr (requires { Object.Key; Object.Value; })
			{
				AddIfReference(Object.Key, ReferencingObject, ReferencingProperty);
				AddIfReference(Object.Value, ReferencingObject, ReferencingProperty);
			}
			else
			{
				AddIfReference(Object, ReferencingObject, ReferencingProperty);
			}
		}
	}
	/** The references of a struct value, by its reflection. */
	void AddReferencedObjects(const UScriptStruct*& ScriptStruct, void* StructMemory, const UObject* ReferencingObject = nullptr,
		const FProperty* ReferencingProperty = nullptr);
	void AddPropertyReferences(const UScriptStruct* Struct, void* Instance, const UObject* ReferencingObject = nullptr);
	void AddPropertyReferencesWithStructARO(const UStruct* Struct, void* Instance, const UObject* ReferencingObject = nullptr);

	virtual bool IsIgnoringArchetypeRef() const { return false; }
	virtual bool IsIgnoringTransient() const { return false; }
	virtual bool IsProcessingNativeReferences() const { return true; }
	void SetSerializedProperty(const FProperty* InProperty) {}
	FProperty* GetSerializedProperty() const { return nullptr; }

protected:
	/** May replace the reference. */
	virtual void HandleObjectReference(UObject*& InObject, const UObject* InReferencingObject, const FProperty* InReferencingProperty) = 0;
	virtual void HandleStableReference(UObject*& InObject) { HandleObjectReference(InObject, nullptr, nullptr); }

private:
	template <class T>
	void AddIfReference(T& Value, const UObject* ReferencingObject, const FProperty* ReferencingProperty)
	{
		if constexpr (requires { AddReferencedObject(const_cast<std::remove_const_t<T>&>(Value), ReferencingObject, ReferencingProperty); })
		{
			AddReferencedObject(const_cast<std::remove_const_t<T>&>(Value), ReferencingObject, ReferencingProperty);
		}
	}
};

/** Collects the objects that an object, or a value, refers to. */
class COREUOBJECT_API FReferenceFinder : public FReferenceCollector
{
public:
	/** Only objects below LimitOuter when that is given. */
	FReferenceFinder(TArray<UObject*>& InObjectArray, UObject* InOuter = nullptr, bool bInRequireDirectOuter = true,
		bool bInShouldIgnoreArchetype = false, bool bInSerializeRecursively = false, bool bInShouldIgnoreTransient = false);

	virtual void FindReferences(UObject* Object, UObject* ReferencingObject = nullptr, FProperty* ReferencingProperty = nullptr);

protected:
	void HandleObjectReference(UObject*& InObject, const UObject* InReferencingObject, const FProperty* InReferencingProperty) override;

	TArray<UObject*>& ObjectArray;
	TSet<const UObject*> ObjectSet;
	UObject* LimitOuter;
	bool bRequireDirectOuter;
	bool bShouldIgnoreArchetype;
	bool bSerializeRecursively;
};
