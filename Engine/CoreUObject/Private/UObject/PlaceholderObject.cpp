#include "UObject/PlaceholderObject.h"

#include "ObjectBootstrap.h"
#include "UObject/Package.h"
#include "UObject/UObjectHash.h"
#include "UObject/UObjectIterator.h"
#include "UObject/UnrealType.h"
#include "UObjectHashTables.h"

namespace
{
/** Stand-ins by index and serial number, so that a collected one is never mistaken for its successor. */
TSet<FWeakObjectPtr>& GetStandIns()
{
	static TSet<FWeakObjectPtr>& StandIns = *new TSet<FWeakObjectPtr>;
	return StandIns;
}

/** Stand-ins that were made as somebody's outer, of a class that nobody has named yet. */
TSet<FWeakObjectPtr>& GetUnknownKinds()
{
	static TSet<FWeakObjectPtr>& Unknown = *new TSet<FWeakObjectPtr>;
	return Unknown;
}

void ForgetDeletedStandIns()
{
	for (TSet<FWeakObjectPtr>* const Objects : {&GetStandIns(), &GetUnknownKinds()})
	{
		for (auto It = Objects->CreateIterator(); It; ++It)
		{
			if (!It->IsValid(true))
			{
				It.RemoveCurrent();
			}
		}
	}
}

TArray<FString> SplitPath(const FString& Path)
{
	TArray<FString> Parts;
	FString Part;
	for (const TCHAR Character : Path)
	{
		if (Character == '.' || Character == ':')
		{
			Parts.Add(MoveTemp(Part));
			Part.Reset();
		}
		else
		{
			Part.AppendChar(Character);
		}
	}
	Parts.Add(MoveTemp(Part));
	return Parts;
}

/** What a text form of a reference could not hold. A blank may stand in an asset's name, so it may stand here. */
bool HasUnwritableCharacter(const FString& Part)
{
	for (const TCHAR Character : Part)
	{
		if (Character < TEXT(' ') || Character == TEXT('"') || Character == TEXT('\'') || Character == TEXT('\\'))
		{
			return true;
		}
	}
	return false;
}

bool IsWellFormed(const TArray<FString>& Parts)
{
	constexpr int32 MaxDepth = 32;
	if (Parts.Num() < 2 || Parts.Num() > MaxDepth || !Parts[0].StartsWith(TEXT("/")) || Parts[0].Contains(TEXT("//")))
	{
		return false;
	}
	for (const FString& Part : Parts)
	{
		if (Part.IsEmpty() || Part.Len() >= NAME_SIZE || Part.Equals(TEXT("None"), ESearchCase::IgnoreCase) || HasUnwritableCharacter(Part))
		{
			return false;
		}
	}
	return true;
}

void Remember(UObject* Object)
{
	[[maybe_unused]] static const FDelegateHandle ForgetsDeletedObjects =
		FCoreUObjectDelegates::GetPostGarbageCollect().AddStatic(&ForgetDeletedStandIns);
	GetStandIns().Add(FWeakObjectPtr(Object));
}

class FReferenceReplacer final : public FReferenceCollector
{
public:
	explicit FReferenceReplacer(const TMap<UObject*, UObject*>& InReplacements)
		: Replacements(InReplacements)
	{
	}

protected:
	void HandleObjectReference(UObject*& Object, const UObject* ReferencingObject, const FProperty* ReferencingProperty) override
	{
		if (UObject* const* const Replacement = Object ? Replacements.Find(Object) : nullptr)
		{
			Object = *Replacement;
		}
	}

private:
	const TMap<UObject*, UObject*>& Replacements;
};

void LinkStandInClass(UClass* Class, UClass* Super)
{
	Class->SetSuperStruct(Super);
	// Flags that are inherited would find their way into the packages of classes below it.
	Class->ClassFlags |= CLASS_Abstract;
	Class->ClassWithin = UObject::StaticClass();
	Class->bStandsInForUnknown = true;
	Class->Bind();
	Class->StaticLink(true);
}

void FinishStandInClass(UClass* Class, UClass* Super)
{
	LinkStandInClass(Class, Super);
	Class->GetDefaultObject();
	Remember(Class->GetDefaultObject());
}

/** A stand-in for a type is a type that can be asked. */
void FinishStandIn(UObject* Object)
{
	if (Object->IsA<UClass>())
	{
		FinishStandInClass(static_cast<UClass*>(Object), UObject::StaticClass());
	}
	else if (Object->IsA<UStruct>())
	{
		static_cast<UStruct*>(Object)->StaticLink(true);
	}
}

UObject* MakeStandIn(UClass* Class, UObject* Outer, FName Name)
{
	if (Class->IsChildOf(UPackage::StaticClass()))
	{
		return nullptr;
	}
	// A class that cannot be made here, or that is abstract, is stood in for by its nearest class that can.
	while (Class->HasAnyClassFlags(CLASS_Abstract) && Class->GetSuperClass())
	{
		if (UE::CoreUObject::IsPlaceholder(Class))
		{
			break;
		}
		Class = Class->GetSuperClass();
	}
	FStaticConstructObjectParameters Params(Class);
	Params.Outer = Outer;
	Params.Name = Name;
	Params.SetFlags = static_cast<EObjectFlags>(RF_Public);
	// A template lets an abstract class be made: nothing but its path matters here.
	Params.Template = Class->GetDefaultObject();
	UObject* const Object = StaticConstructObject_Internal(Params);
	if (!Object)
	{
		return nullptr;
	}
	Remember(Object);
	FinishStandIn(Object);
	return Object;
}

/** Hands a stand-in's children and every reference to it on to another object, and gives it up. */
void TakePlace(UObject* Placeholder, UObject* Successor)
{
	TArray<UObject*> Children;
	GetObjectsWithOuter(Placeholder, Children, false);
	for (UObject* const Child : Children)
	{
		if (!StaticFindObjectFast(nullptr, Successor, Child->GetFName()))
		{
			Child->Rename(nullptr, Successor, REN_DoNotDirty | REN_NonTransactional | REN_DontCreateRedirectors);
		}
	}
	TMap<UObject*, UObject*> Replacements;
	Replacements.Add(Placeholder, Successor);
	UE::CoreUObject::ReplaceObjectReferences(Replacements);
	GetStandIns().Remove(FWeakObjectPtr(Placeholder));
	GetUnknownKinds().Remove(FWeakObjectPtr(Placeholder));
	Placeholder->MarkAsGarbage();
}

/** Whether all that is known of the stand-in class is that it is an object's, and SuperClass says more and fits. */
bool CanReparent(const UClass* Class, const UClass* SuperClass)
{
	const TArray<UClass*>* const Derived = FUObjectHashTables::Get().FindDirectSubclasses(Class);
	TArray<UObject*> Instances;
	if (SuperClass->HasAnyCastFlag(CASTCLASS_UField))
	{
		// A type that was read from a package is more than its C++ type, and that is not known.
		GetObjectsOfClass(Class, Instances, false, RF_ClassDefaultObject);
	}
	const bool bHasReadType = Instances.ContainsByPredicate([](const UObject* Instance)
		{ return !UE::CoreUObject::IsPlaceholder(Instance); });
	return !bHasReadType && UE::CoreUObject::IsPlaceholder(Class) && Class->GetSuperClass() == UObject::StaticClass() &&
		SuperClass != UObject::StaticClass() && !SuperClass->IsChildOf(Class) && (!Derived || Derived->IsEmpty()) &&
		FObjectBootstrap::FitsStandIn(SuperClass);
}

/** Gives a stand-in class its better parent. Objects of the class stay where they are and become objects of the parent's C++ type. */
void Reparent(UClass* Class, UClass* SuperClass)
{
	TArray<UObject*> Instances;
	GetObjectsOfClass(Class, Instances, false, RF_ClassDefaultObject);
	Class->ClassConstructor = nullptr;
	Class->ClassAddReferencedObjects = nullptr;
	LinkStandInClass(Class, SuperClass);
	if (Class->ClassDefaultObject)
	{
		FObjectBootstrap::ConstructAnew(Class->ClassDefaultObject, SuperClass->GetDefaultObject());
	}
	for (UObject* const Instance : Instances)
	{
		FObjectBootstrap::ConstructAnew(Instance, Class->ClassDefaultObject);
		FinishStandIn(Instance);
	}
}

UObject* FindOrCreateOuter(const TArray<FString>& Parts)
{
	UPackage* Package = FindPackage(nullptr, *Parts[0]);
	if (!Package)
	{
		Package = CreatePackage(*Parts[0]);
		if (!Package)
		{
			return nullptr;
		}
		Remember(Package);
	}
	UObject* Outer = Package;
	for (int32 Index = 1; Index + 1 < Parts.Num(); ++Index)
	{
		UObject* Next = StaticFindObjectFast(nullptr, Outer, FName(*Parts[Index]));
		if (!Next)
		{
			Next = MakeStandIn(UObject::StaticClass(), Outer, FName(*Parts[Index]));
			if (!Next)
			{
				return nullptr;
			}
			GetUnknownKinds().Add(FWeakObjectPtr(Next));
		}
		Outer = Next;
	}
	return Outer;
}
}

namespace UE::CoreUObject
{
UObject* FindOrCreatePlaceholder(UClass* Class, const FString& ObjectPath)
{
	const TArray<FString> Parts = SplitPath(ObjectPath);
	if (Parts.Num() == 1 && Class == UPackage::StaticClass() && ObjectPath.StartsWith(TEXT("/")) && ObjectPath.Len() < NAME_SIZE)
	{
		UPackage* Package = FindPackage(nullptr, *ObjectPath);
		if (!Package)
		{
			Package = CreatePackage(*ObjectPath);
			if (Package)
			{
				Remember(Package);
			}
		}
		return Package;
	}
	if (!IsWellFormed(Parts))
	{
		return nullptr;
	}
	UObject* const Outer = FindOrCreateOuter(Parts);
	if (!Outer)
	{
		return nullptr;
	}
	const FName Name(*Parts.Last());
	UObject* const Existing = StaticFindObjectFast(nullptr, Outer, Name);
	const bool bClassBecomesKnown = Existing && Class && GetUnknownKinds().Contains(FWeakObjectPtr(Existing));
	if (Existing && !bClassBecomesKnown)
	{
		return Existing;
	}
	const FString DefaultPrefix(DEFAULT_OBJECT_PREFIX);
	if (!Existing && Parts.Num() == 2 && Parts[1].StartsWith(DefaultPrefix))
	{
		// The default object of a missing class comes with the class.
		FindOrCreatePlaceholderClass(FTopLevelAssetPath(FName(*Parts[0]), FName(*Parts[1].RightChop(DefaultPrefix.Len()))));
		if (UObject* const Defaults = StaticFindObjectFast(nullptr, Outer, Name))
		{
			return Defaults;
		}
	}
	UObject* const Made = MakeStandIn(Class ? Class : UObject::StaticClass(), Outer, Name);
	if (Made && !Class)
	{
		GetUnknownKinds().Add(FWeakObjectPtr(Made));
	}
	return Made;
}

UObject* FindOrCreatePlaceholder(const FTopLevelAssetPath& ClassPath, const FString& ObjectPath)
{
	if (ClassPath.IsNull())
	{
		return FindOrCreatePlaceholder(static_cast<UClass*>(nullptr), ObjectPath);
	}
	UClass* Class = static_cast<UClass*>(StaticFindObject(UClass::StaticClass(), ClassPath));
	if (!Class)
	{
		Class = FindOrCreatePlaceholderClass(ClassPath);
	}
	return Class ? FindOrCreatePlaceholder(Class, ObjectPath) : nullptr;
}

UClass* FindOrCreatePlaceholderClass(const FTopLevelAssetPath& ClassPath, UClass* SuperClass)
{
	UObject* const Object = FindOrCreatePlaceholder(UClass::StaticClass(), ClassPath.ToString());
	UClass* const Class = Object && Object->IsA<UClass>() ? static_cast<UClass*>(Object) : nullptr;
	if (Class && SuperClass && CanReparent(Class, SuperClass))
	{
		Reparent(Class, SuperClass);
	}
	return Class;
}

bool IsPlaceholder(const UObject* Object)
{
	return Object && GUObjectArray.GetSerialNumber(static_cast<int32>(Object->GetUniqueID())) != 0 &&
		GetStandIns().Contains(FWeakObjectPtr(Object));
}

void VacatePlaceholderName(UObject* Placeholder)
{
	Placeholder->Rename(*MakeUniqueObjectName(GetTransientPackageAsObject(), Placeholder->GetClass()).ToString(),
		GetTransientPackageAsObject(), REN_DoNotDirty | REN_NonTransactional | REN_DontCreateRedirectors);
}

void ReplacePlaceholder(UObject* Placeholder, UObject* RealObject)
{
	TakePlace(Placeholder, RealObject);
	if (UObject* const Package = RealObject->GetOutermost())
	{
		GetStandIns().Remove(FWeakObjectPtr(Package));
	}
}

UObject* FitPlaceholder(UObject* Object, UClass* RequiredClass)
{
	if (!Object->IsA(RequiredClass) && CanReparent(Object->GetClass(), RequiredClass))
	{
		Reparent(Object->GetClass(), RequiredClass);
	}
	if (Object->IsA(RequiredClass))
	{
		return Object;
	}
	UObject* const Outer = Object->GetOuter();
	const FName Name = Object->GetFName();
	if (IsPlaceholder(Object) && GetUnknownKinds().Contains(FWeakObjectPtr(Object)) && Outer)
	{
		VacatePlaceholderName(Object);
		if (UObject* const New = MakeStandIn(RequiredClass, Outer, Name))
		{
			TakePlace(Object, New);
		}
	}
	UObject* const Successor = StaticFindObjectFast(nullptr, Outer, Name);
	return Successor && Successor->IsA(RequiredClass) ? Successor : nullptr;
}

void ReplaceObjectReferences(const TMap<UObject*, UObject*>& Replacements)
{
	FReferenceReplacer Replacer(Replacements);
	for (int32 Index = 0; Index < GUObjectArray.GetObjectArrayNum(); ++Index)
	{
		UObject* const Object = static_cast<UObject*>(GUObjectArray.IndexToObjectUnsafe(Index).Object);
		if (!Object || Object->HasAnyFlags(RF_BeginDestroyed))
		{
			continue;
		}
		UClass* const Class = Object->GetClass();
		Class->GetReferenceSchema().Visit(Object, Replacer, Object);
		if (Class->ClassAddReferencedObjects)
		{
			Class->ClassAddReferencedObjects(Object, Replacer);
		}
	}
	FCoreUObjectDelegates::OnObjectsReplaced.Broadcast(Replacements);
}
}

bool IsInPlaceholderPackage(const UObject* Object)
{
	return Object && UE::CoreUObject::IsPlaceholder(Object->GetOutermost());
}
