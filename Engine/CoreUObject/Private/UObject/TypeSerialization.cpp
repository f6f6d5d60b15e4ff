#include "Templates/Casts.h"
#include "UObject/Class.h"
#include "UObject/CoreObjectVersion.h"
#include "UObject/EditorObjectVersion.h"
#include "UObject/FrameworkObjectVersion.h"
#include "UObject/LinkerLoad.h"
#include "UObject/LinkerSave.h"
#include "UObject/MetaData.h"
#include "UObject/ObjectRedirector.h"
#include "UObject/ObjectVersion.h"
#include "UObject/Package.h"
#include "UObject/UObjectGlobals.h"
#include "UObject/UnrealType.h"

// The forms in which objects and type definitions stand in packages, undo buffers and duplicates.

namespace
{
/** An array's length, refused when what is left of the archive could not hold it. */
bool SerializeCount(FArchive& Ar, int32& Count, int64 MinElementSize)
{
	Ar << Count;
	if (Ar.IsLoading() && (Count < 0 || (Ar.TotalSize() >= 0 && Count > (Ar.TotalSize() - Ar.Tell()) / MinElementSize)))
	{
		Ar.SetError();
		Count = 0;
		return false;
	}
	return !Ar.IsError();
}

/** Whether the archive may have a form from before a version: packages have, undo buffers and copies are of today. */
bool IsOldForm(const FArchive& Ar)
{
	return Ar.IsLoading() || Ar.IsPersistent();
}

void SerializeEnum(FArchive& Ar, auto& Value)
{
	uint32 Number = static_cast<uint32>(Value);
	Ar << Number;
	Value = static_cast<std::remove_reference_t<decltype(Value)>>(Number);
}

/** A reference that a package may claim to be of a kind that its object is not: then it is null. */
template <typename PointerType>
void SerializeReference(FArchive& Ar, PointerType& Reference)
{
	using ReferencedType = std::remove_pointer_t<decltype(&*Reference)>;
	UObject* Object = Reference;
	Ar << Object;
	if (Ar.IsLoading() || Object != Reference)
	{
		Reference = Object && Object->IsA(ReferencedType::StaticClass()) ? static_cast<ReferencedType*>(Object) : nullptr;
	}
}

/** The package that is being read; null for other archives. */
FLinkerLoad* GetLoader(FArchive& Ar)
{
	return Ar.IsLoading() && Ar.IsPersistent() ? static_cast<FLinkerLoad*>(Ar.GetLinker()) : nullptr;
}

/** The package in whose form another is being written; null for other archives. */
const FLinkerLoad* GetOrigin(FArchive& Ar)
{
	FLinker* const Linker = Ar.IsSaving() && Ar.IsPersistent() ? Ar.GetLinker() : nullptr;
	return Linker ? static_cast<FLinkerSave*>(Linker)->GetOrigin() : nullptr;
}

/**
 * A link from a field to the next or to its first child. In old packages links lead to properties too, which were objects then
 * and are no fields here: the package keeps where they led.
 */
void SerializeFieldLink(FArchive& Ar, const UField* Owner, FName Member, TObjectPtr<UField>& Field)
{
	const FLinkerLoad* const Origin = GetOrigin(Ar);
	UObject* const Kept = Origin ? Origin->FindKeptLink(Owner, Member) : nullptr;
	UObject* Object = Kept ? Kept : static_cast<UObject*>(Field.Get());
	if (Kept && Field)
	{
		// A list that goes on here and there cannot be written as one.
		Ar.SetError();
	}
	Ar << Object;
	if (!Ar.IsLoading())
	{
		return;
	}
	Field = Cast<UField>(Object);
	if (FLinkerLoad* const Loader = Object && !Field ? GetLoader(Ar) : nullptr)
	{
		Loader->KeepLink(Owner, Member, Object);
	}
}

/** Default objects have the word about a GUID as every object has, but in packages of the 4.x line. */
bool HasGuidFlag(const FArchive& Ar, const UObject& Object)
{
	return !Object.HasAnyFlags(RF_ClassDefaultObject) || Ar.UEVer() >= EUnrealEngineObjectUE5Version::INITIAL_VERSION;
}

void SerializeIdentityForUndo(FArchive& Ar, UObject* Object, FName& Name, UObject*& Outer)
{
	Name = Object->GetFName();
	Outer = Object->GetOuter();
	Ar << Name;
	Ar << Outer;
}
}

void UObject::Serialize(FArchive& Ar)
{
	UClass* Class = GetClass();
	if (Class->HasAnyFlags(RF_NeedLoad))
	{
		Ar.Preload(Class);
	}
	if (Ar.IsTransacting())
	{
		FName Name;
		UObject* Outer = nullptr;
		SerializeIdentityForUndo(Ar, this, Name, Outer);
		if (Ar.IsLoading() && (!Name.IsEqual(GetFName(), ENameCase::CaseSensitive) || Outer != GetOuter()))
		{
			LowLevelRename(Name, Outer);
		}
	}
	else if (!Ar.IsLoading() && !Ar.IsSaving())
	{
		UObject* Outer = GetOuter();
		Ar << Outer;
		Ar << Class;
	}
	// Types describe themselves; only kinds of class that were declared with properties have any to write.
	if (Class != UClass::StaticClass())
	{
		SerializeScriptProperties(Ar);
	}
	if (Ar.IsTransacting())
	{
		bool bGarbage = HasAnyInternalFlags(EInternalObjectFlags::Garbage);
		Ar << bGarbage;
		if (Ar.IsLoading())
		{
			bGarbage ? MarkAsGarbage() : ClearGarbage();
		}
	}
	else if (Ar.IsPersistent() && HasGuidFlag(Ar, *this) && (Ar.IsLoading() || Ar.IsSaving()))
	{
		FUniqueObjectGuid Guid(this);
		bool bHasGuid = Guid.IsValid();
		Ar << bHasGuid;
		if (bHasGuid)
		{
			Ar << Guid;
		}
	}
}

void UObject::SerializeScriptProperties(FArchive& Ar) const
{
	Ar.MarkScriptSerializationStart(this);
	UClass* const Class = GetClass();
	UObject* const This = const_cast<UObject*>(this);
	// Transient members of a class have defaults, which are saved as others are.
	const bool bIsDefaultObject = HasAnyFlags(RF_ClassDefaultObject);
	if (bIsDefaultObject)
	{
		Ar.StartSerializingDefaults();
	}
	if ((Ar.IsLoading() || Ar.IsSaving()) && !Ar.WantBinaryPropertySerialization())
	{
		UObject* const Defaults = GetArchetype();
		const UStruct* const DefaultsClass = Defaults ? Defaults->GetClass() : nullptr;
		Class->SerializeTaggedProperties(Ar, reinterpret_cast<uint8*>(This), DefaultsClass, reinterpret_cast<uint8*>(Defaults));
	}
	else
	{
		Class->SerializeBin(Ar, This);
	}
	if (bIsDefaultObject)
	{
		Ar.StopSerializingDefaults();
	}
	Ar.MarkScriptSerializationEnd(this);
}

void UField::Serialize(FArchive& Ar)
{
	Super::Serialize(Ar);
	Ar.UsingCustomVersion(FFrameworkObjectVersion::GUID);
	if (Ar.CustomVer(FFrameworkObjectVersion::GUID) < FFrameworkObjectVersion::RemoveUField_Next)
	{
		SerializeFieldLink(Ar, this, TEXT("Next"), Next);
	}
}

namespace
{
/** Under which a package keeps a child that is no field here. */
FName GetChildName(int32 Index)
{
	return FName(TEXT("Children"), NAME_EXTERNAL_TO_INTERNAL(Index));
}

/** The struct's children, and in their places those that the package keeps. */
TArray<UObject*> ListChildren(FArchive& Ar, const UStruct& Struct)
{
	const FLinkerLoad* const Origin = GetOrigin(Ar);
	const auto FindKept = [Origin, &Struct](int32 Index)
	{ return Origin ? Origin->FindKeptLink(&Struct, GetChildName(Index)) : nullptr; };
	TArray<UObject*> Children;
	for (UField* Child = Struct.Children; Child; Child = Child->Next)
	{
		while (UObject* const Kept = FindKept(Children.Num()))
		{
			Children.Add(Kept);
		}
		Children.Add(Child);
	}
	while (UObject* const Kept = FindKept(Children.Num()))
	{
		Children.Add(Kept);
	}
	return Children;
}

void SerializeChildren(FArchive& Ar, UStruct* Struct)
{
	if (Ar.CustomVer(FFrameworkObjectVersion::GUID) < FFrameworkObjectVersion::RemoveUField_Next)
	{
		SerializeFieldLink(Ar, Struct, TEXT("Children"), Struct->Children);
		return;
	}
	TArray<UObject*> Children = Ar.IsLoading() ? TArray<UObject*>() : ListChildren(Ar, *Struct);
	int32 Count = Children.Num();
	SerializeCount(Ar, Count, sizeof(int32));
	Children.SetNumZeroed(Count);
	for (UObject*& Child : Children)
	{
		Ar << Child;
	}
	if (!Ar.IsLoading())
	{
		return;
	}
	FLinkerLoad* const Loader = GetLoader(Ar);
	UField* Next = nullptr;
	for (int32 Index = Children.Num() - 1; Index >= 0; --Index)
	{
		if (UField* const Field = Cast<UField>(Children[Index]))
		{
			Field->Next = Next;
			Next = Field;
		}
		else if (Children[Index] && Loader)
		{
			Loader->KeepLink(Struct, GetChildName(Index), Children[Index]);
		}
	}
	Struct->Children = Next;
}

void SerializeProperties(FArchive& Ar, UStruct* Struct)
{
	if (Ar.IsLoading())
	{
		Struct->DestroyChildPropertiesAndResetPropertyLinks();
	}
	int32 Count = 0;
	for (const FField* Field = Struct->ChildProperties; Field; Field = Field->Next)
	{
		++Count;
	}
	SerializeCount(Ar, Count, 1);
	FField* Field = Struct->ChildProperties;
	FField** Tail = &Struct->ChildProperties;
	for (int32 Index = 0; Index < Count && !Ar.IsError(); ++Index)
	{
		FField* Current = Ar.IsLoading() ? nullptr : Field;
		SerializeSingleField(Ar, Current, FFieldVariant(Struct));
		if (!Ar.IsLoading())
		{
			Field = Field->Next;
		}
		else if (Current)
		{
			*Tail = Current;
			Tail = &Current->Next;
			*Tail = nullptr;
		}
	}
}
}

namespace
{
/** A class derives from a class, a struct from a struct, a function from a function; a package may claim anything. */
bool CanBeSuper(const UStruct* Struct, const UStruct* Super)
{
	for (const UClass* const Kind : {UClass::StaticClass(), UScriptStruct::StaticClass(), UFunction::StaticClass()})
	{
		if (Struct->IsA(Kind) != Super->IsA(Kind))
		{
			return false;
		}
	}
	return !Super->IsChildOf(Struct);
}
}

void UStruct::Serialize(FArchive& Ar)
{
	Super::Serialize(Ar);
	Ar.UsingCustomVersion(FCoreObjectVersion::GUID);
	UStruct* Super = SuperStruct;
	SerializeReference(Ar, Super);
	if (Ar.IsLoading())
	{
		// Own members come behind the super's, so that must have its size.
		Ar.Preload(Super);
		const bool bIsWhole = Super && !FLinkerLoad::IsBeingRead(Super);
		SetSuperStruct(bIsWhole && CanBeSuper(this, Super) ? Super : nullptr);
	}
	SerializeChildren(Ar, this);
	const bool bHasProperties = !IsOldForm(Ar) || Ar.CustomVer(FCoreObjectVersion::GUID) >= FCoreObjectVersion::FProperties;
	if (bHasProperties)
	{
		SerializeProperties(Ar, this);
	}
	else if (Ar.IsSaving() && ChildProperties)
	{
		// Properties were objects of their own then.
		Ar.SetError();
	}
	Ar << ScriptBytecodeSize;
	int32 StorageSize = Script.Num();
	SerializeCount(Ar, StorageSize, 1);
	if (Ar.IsLoading())
	{
		Script.SetNumUninitialized(StorageSize);
	}
	Ar.Serialize(Script.GetData(), StorageSize);
	if (Ar.IsLoading() && !IsA<UClass>())
	{
		Link(Ar, true);
	}
}

void UScriptStruct::Serialize(FArchive& Ar)
{
	Super::Serialize(Ar);
	const EStructFlags Computed = StructFlags & STRUCT_ComputedFlags;
	EStructFlags Stored = StructFlags & ~STRUCT_ComputedFlags;
	SerializeEnum(Ar, Stored);
	if (Ar.IsLoading())
	{
		StructFlags = (Stored & ~STRUCT_ComputedFlags) | Computed;
		PrepareCppStructOps();
	}
}

void UFunction::Serialize(FArchive& Ar)
{
	Super::Serialize(Ar);
	SerializeEnum(Ar, FunctionFlags);
	if (FunctionFlags & FUNC_Net)
	{
		int16 ReplicationOffset = 0;
		Ar << ReplicationOffset;
	}
	if (Ar.UEVer() >= VER_UE4_SERIALIZE_BLUEPRINT_EVENTGRAPH_FASTCALLS_IN_UFUNCTION)
	{
		SerializeReference(Ar, EventGraphFunction);
		Ar << EventGraphCallOffset;
	}
	if (Ar.IsLoading())
	{
		InitializeDerivedMembers();
	}
}

void USparseDelegateFunction::Serialize(FArchive& Ar)
{
	Super::Serialize(Ar);
	Ar << OwningClassName;
	Ar << DelegateName;
}

void UClass::Serialize(FArchive& Ar)
{
	Super::Serialize(Ar);
	if (Ar.IsLoading() && !GetSuperStruct() && this != UObject::StaticClass())
	{
		// Every class needs a constructor, which comes from its super.
		SetSuperStruct(UObject::StaticClass());
		Ar.SetError();
	}
	int32 NumFunctions = FuncMap.Num();
	SerializeCount(Ar, NumFunctions, sizeof(int64));
	TArray<TPair<FName, UFunction*>> Functions;
	for (const TPair<FName, TObjectPtr<UFunction>>& Pair : FuncMap)
	{
		Functions.Emplace(Pair.Key, Pair.Value.Get());
	}
	Functions.SetNum(NumFunctions);
	for (TPair<FName, UFunction*>& Pair : Functions)
	{
		Ar << Pair.Key;
		SerializeReference(Ar, Pair.Value);
	}
	if (Ar.IsLoading())
	{
		FuncMap.Empty();
		ClearFunctionMapsCaches();
		for (const TPair<FName, UFunction*>& Pair : Functions)
		{
			if (Pair.Value)
			{
				FuncMap.Add(Pair.Key, Pair.Value);
			}
		}
	}
	SerializeEnum(Ar, ClassFlags);
	if (Ar.IsLoading() && Ar.IsPersistent())
	{
		// Members of native classes are C++'s to make, and no package has a native class.
		ClassFlags &= ~static_cast<EClassFlags>(CLASS_Native | CLASS_Intrinsic);
	}
	SerializeReference(Ar, ClassWithin);
	Ar << ClassConfigName;
	// Interfaces stood before the generating Blueprint in older packages.
	const bool bInterfacesLast = Ar.UEVer() >= VER_UE4_UCLASS_SERIALIZE_INTERFACES_AFTER_LINKING;
	const auto SerializeInterfaces = [this, &Ar]()
	{
		int32 Count = Interfaces.Num();
		SerializeCount(Ar, Count, 3 * sizeof(int32));
		Interfaces.SetNum(Count);
		for (FImplementedInterface& Interface : Interfaces)
		{
			Ar << Interface;
		}
	};
	if (!bInterfacesLast)
	{
		SerializeInterfaces();
	}
	Ar << ClassGeneratedBy;
	if (Ar.IsLoading())
	{
		Link(Ar, true);
		Bind();
	}
	if (bInterfacesLast)
	{
		SerializeInterfaces();
	}
	bool bDeprecatedScriptOrder = false;
	Ar << bDeprecatedScriptOrder;
	FName Dummy;
	Ar << Dummy;
	if (Ar.UEVer() >= VER_UE4_ADD_COOKED_TO_UCLASS)
	{
		Ar << bCooked;
	}
	Ar << ClassDefaultObject;
}

void UEnum::Serialize(FArchive& Ar)
{
	Super::Serialize(Ar);
	Ar.UsingCustomVersion(FCoreObjectVersion::GUID);
	const bool bOldNames = IsOldForm(Ar) && Ar.UEVer() < VER_UE4_TIGHTLY_PACKED_ENUMS;
	const bool bByteValues = IsOldForm(Ar) && Ar.CustomVer(FCoreObjectVersion::GUID) < FCoreObjectVersion::EnumProperties;
	int32 Count = Names.Num();
	SerializeCount(Ar, Count, bOldNames ? 8 : 9);
	Names.SetNum(Count);
	for (int32 Index = 0; Index < Count; ++Index)
	{
		Ar << Names[Index].Key;
		if (bOldNames)
		{
			Names[Index].Value = Index;
		}
		else if (bByteValues)
		{
			uint8 Value = static_cast<uint8>(Names[Index].Value);
			Ar << Value;
			Names[Index].Value = Value;
		}
		else
		{
			Ar << Names[Index].Value;
		}
	}
	uint8 Form = static_cast<uint8>(CppForm);
	if (IsOldForm(Ar) && Ar.UEVer() < VER_UE4_ENUM_CLASS_SUPPORT)
	{
		bool bNamespace = Form != 0;
		Ar << bNamespace;
		Form = bNamespace ? 1 : 0;
	}
	else
	{
		Ar << Form;
	}
	CppForm = static_cast<ECppForm>(std::min<uint8>(Form, 2));
}

void UObjectRedirector::Serialize(FArchive& Ar)
{
	Super::Serialize(Ar);
	Ar << DestinationObject;
}

UObjectRedirector::UObjectRedirector(const FObjectInitializer& ObjectInitializer)
	: UObject(ObjectInitializer)
{
}

void UObjectRedirector::AddReferencedObjects(UObject* InThis, FReferenceCollector& Collector)
{
	Collector.AddReferencedObject(static_cast<UObjectRedirector*>(InThis)->DestinationObject, InThis);
	UObject::AddReferencedObjects(InThis, Collector);
}

namespace
{
void SerializeMetaDataValues(FArchive& Ar, TMap<FName, FString>& Values)
{
	int32 Count = Values.Num();
	SerializeCount(Ar, Count, 12);
	if (Ar.IsLoading())
	{
		Values.Empty(Count);
		for (int32 Index = 0; Index < Count && !Ar.IsError(); ++Index)
		{
			FName Key;
			FString Value;
			Ar << Key;
			Ar << Value;
			Values.Add(Key, MoveTemp(Value));
		}
		return;
	}
	for (TPair<FName, FString>& Pair : Values)
	{
		Ar << Pair.Key;
		Ar << Pair.Value;
	}
}
}

void UMetaData::Serialize(FArchive& Ar)
{
	Super::Serialize(Ar);
	if (Ar.IsSaving() && Ar.IsPersistent())
	{
		// Whoever changed metadata changed the package's.
		const FMetaData& OfPackage = GetOutermost()->GetMetaData();
		ObjectMetaDataMap = OfPackage.ObjectMetaDataMap;
		RootMetaDataMap = OfPackage.RootMetaDataMap;
	}
	Ar.UsingCustomVersion(FEditorObjectVersion::GUID);
	int32 Count = ObjectMetaDataMap.Num();
	SerializeCount(Ar, Count, 8);
	if (Ar.IsLoading())
	{
		ObjectMetaDataMap.Empty(Count);
		for (int32 Index = 0; Index < Count && !Ar.IsError(); ++Index)
		{
			UObject* Object = nullptr;
			TMap<FName, FString> Values;
			Ar << Object;
			SerializeMetaDataValues(Ar, Values);
			if (Object)
			{
				ObjectMetaDataMap.Add(FWeakObjectPtr(Object), MoveTemp(Values));
			}
		}
	}
	else
	{
		for (TPair<FWeakObjectPtr, TMap<FName, FString>>& Pair : ObjectMetaDataMap)
		{
			UObject* Object = Pair.Key.Get();
			Ar << Object;
			SerializeMetaDataValues(Ar, Pair.Value);
		}
	}
	if (!IsOldForm(Ar) || Ar.CustomVer(FEditorObjectVersion::GUID) >= FEditorObjectVersion::RootMetaDataSupport)
	{
		SerializeMetaDataValues(Ar, RootMetaDataMap);
	}
	if (Ar.IsLoading() && GetOutermost())
	{
		FMetaData& PackageMetaData = GetOutermost()->GetMetaData();
		PackageMetaData.ObjectMetaDataMap.Append(ObjectMetaDataMap);
		PackageMetaData.RootMetaDataMap.Append(RootMetaDataMap);
	}
}
