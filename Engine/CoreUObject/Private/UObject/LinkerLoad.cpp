#include "UObject/LinkerLoad.h"

#include "DeclaredSubobjects.h"
#include "ObjectFingerprint.h"
#include "PackageBytes.h"
#include "UObject/Class.h"
#include "UObject/CoreUObjectDelegates.h"
#include "UObject/LazyObjectPtr.h"
#include "UObject/ObjectPtr.h"
#include "UObject/Package.h"
#include "UObject/PlaceholderObject.h"
#include "UObject/SoftObjectPtr.h"
#include "UObject/UObjectGlobals.h"
#include "UObject/UObjectHash.h"
#include "UObject/UnrealType.h"

namespace
{
/** Where classes stand whose own definition is not one that this host can read. */
constexpr const TCHAR* UnreadableClassesPackage = TEXT("/Script/UnreadableClasses");

/** Whether a part of the class is known by its header alone: its C++ may write bytes that only it can read. */
bool IsPartlyDeclared(const UClass* Class)
{
	while (Class && !Class->bLaidOutAtRunTime)
	{
		Class = Class->GetSuperClass();
	}
	return Class != nullptr;
}

/** Bytes that an object of the class takes with the parts that it makes for itself. */
int64 GetSizeOfObject(const UClass* Class)
{
	const FDeclaredSubobjects* const Subobjects = FDeclaredSubobjects::Find(Class);
	return Class->GetPropertiesSize() + (Subobjects ? Subobjects->GetMemorySize() : 0);
}

/** The objects that are being read, each because of the one before it. */
TArray<const UObject*>& GetObjectsInReading()
{
	static TArray<const UObject*> Objects;
	return Objects;
}

/** Sets the range of the file that reads may touch, and puts position and range back. */
class FReadWindow
{
public:
	FReadWindow(int64& InPosition, int64& InLimit, int64 NewPosition, int64 NewLimit)
		: Position(InPosition)
		, Limit(InLimit)
		, OldPosition(InPosition)
		, OldLimit(InLimit)
	{
		Position = NewPosition;
		Limit = NewLimit;
	}
	~FReadWindow()
	{
		Position = OldPosition;
		Limit = OldLimit;
	}

private:
	int64& Position;
	int64& Limit;
	int64 OldPosition;
	int64 OldLimit;
};

/** About what a copy of the object and of its parts takes in memory: their values take a small multiple of their bytes in the file. */
int64 MeasureCopy(UObject& Object)
{
	constexpr int64 MemoryPerValueByte = 4;
	TArray<UObject*> Objects;
	GetObjectsWithOuter(&Object, Objects);
	Objects.Add(&Object);
	int64 Bytes = 0;
	for (const UObject* const Copied : Objects)
	{
		const FLinkerLoad* const Linker = Copied->GetPackage()->GetLinker();
		const int32 ExportIndex = Linker ? Linker->FindExportOf(Copied) : INDEX_NONE;
		const int64 ValueBytes = ExportIndex == INDEX_NONE ? 0 : Linker->ExportMap[ExportIndex].SerialSize;
		Bytes += Copied->GetClass()->GetPropertiesSize() + ValueBytes * MemoryPerValueByte;
	}
	return Bytes;
}

/**
 * Gives an object that is about to be read the values of its archetype. Where two packages refer to each other it may have been made
 * before the archetype was there.
 */
void InheritValues(UObject& Object, FLinkerLoad& Linker)
{
	UObject* const Archetype = Object.GetArchetype();
	Linker.Preload(Archetype);
	for (const FProperty* Property = Object.GetClass()->PropertyLink; Property; Property = Property->PropertyLinkNext)
	{
		if (!Property->ContainsInstancedObjectProperty())
		{
			Property->CopyCompleteValue_InContainer(&Object, Archetype);
		}
	}
}
}

void FLinkerLoad::Seek(int64 InPos)
{
	if (InPos < 0 || InPos > Limit)
	{
		SetError();
		return;
	}
	Position = InPos;
}

void FLinkerLoad::Serialize(void* Data, int64 Length)
{
	if (Length < 0 || Length > Limit - Position)
	{
		SetError();
	}
	if (IsError())
	{
		FMemory::Memzero(Data, FMath::Max<int64>(Length, 0));
		return;
	}
	if (WholeFile)
	{
		FMemory::Memcpy(Data, WholeFile + Position, Length);
	}
	else if (!File->Read(Position, Data, Length))
	{
		SetError();
		FMemory::Memzero(Data, Length);
		return;
	}
	Position += Length;
}

void FLinkerLoad::SetError()
{
	ErrorPosition = IsError() ? ErrorPosition : Position;
	FArchive::SetError();
}

FArchive& FLinkerLoad::operator<<(FName& Value)
{
	int32 Index = 0;
	int32 Number = 0;
	FArchive& Ar = *this;
	const int64 Start = Position;
	Ar << Index << Number;
	if (IsError() || !NameMap.IsValidIndex(Index) || Number < 0)
	{
		Position = IsError() ? Position : Start;
		SetError();
		Value = FName();
		return *this;
	}
	Value = FName(NameMap[Index], Number);
	return *this;
}

FArchive& FLinkerLoad::operator<<(UObject*& Value)
{
	FPackageIndex Index;
	FArchive& Ar = *this;
	const int64 Start = Position;
	Ar << Index;
	if (IsError() || (!Index.IsNull() && !FindResource(Index)))
	{
		Position = IsError() ? Position : Start;
		SetError();
		Value = nullptr;
		return *this;
	}
	Value = IndexToObject(Index);
	return *this;
}

FArchive& FLinkerLoad::operator<<(FObjectPtr& Value)
{
	UObject* Object = nullptr;
	*this << Object;
	Value = FObjectPtr(Object);
	return *this;
}

FArchive& FLinkerLoad::operator<<(FLazyObjectPtr& Value)
{
	FUniqueObjectGuid Guid;
	FArchive& Ar = *this;
	Ar << Guid;
	Value = Guid;
	return *this;
}

FArchive& FLinkerLoad::operator<<(FSoftObjectPath& Value)
{
	if (UEVer() < EUnrealEngineObjectUE5Version::ADD_SOFTOBJECTPATH_LIST || SoftObjectPathList.IsEmpty())
	{
		Value.SerializePath(*this);
		return *this;
	}
	int32 Index = 0;
	FArchive& Ar = *this;
	const int64 Start = Position;
	Ar << Index;
	if (IsError() || !SoftObjectPathList.IsValidIndex(Index))
	{
		Position = IsError() ? Position : Start;
		SetError();
		Value.Reset();
		return *this;
	}
	Value = SoftObjectPathList[Index];
	return *this;
}

FArchive& FLinkerLoad::operator<<(FSoftObjectPtr& Value)
{
	FSoftObjectPath Path;
	*this << Path;
	Value = Path;
	return *this;
}

FArchive& FLinkerLoad::operator<<(FWeakObjectPtr& Value)
{
	UObject* Object = nullptr;
	*this << Object;
	Value = Object;
	return *this;
}

TArray<uint8> FLinkerLoad::ReadBytes(int64 Offset, int64 Length) const
{
	TArray<uint8> Result;
	if (Offset < 0 || Length < 0 || Length > MAX_int32 || Offset > File->Num() || Length > File->Num() - Offset)
	{
		return Result;
	}
	Result.SetNumUninitialized(static_cast<int32>(Length));
	if (!File->Read(Offset, Result.GetData(), Length))
	{
		Result.Reset();
	}
	return Result;
}

int64 FLinkerLoad::LimitReads(int64 End)
{
	const int64 Old = Limit;
	Limit = FMath::Clamp<int64>(End, 0, File->Num());
	return Old;
}

TArray<uint8> FLinkerLoad::GetExportBytes(int32 ExportIndex) const
{
	return ReadBytes(ExportMap[ExportIndex].SerialOffset, ExportMap[ExportIndex].SerialSize);
}

int32 FLinkerLoad::FindExportIndex(const FString& PathName) const
{
	if (ExportsByPath.IsEmpty())
	{
		for (int32 Index = 0; Index < ExportMap.Num(); ++Index)
		{
			ExportsByPath.FindOrAdd(GetExportPathName(Index), Index);
		}
	}
	const int32* const Found = ExportsByPath.Find(PathName);
	return Found ? *Found : INDEX_NONE;
}

int32 FLinkerLoad::FindExportOf(const UObject* Object) const
{
	const int32* const Found = ExportsByObject.Find(Object);
	// Another object may stand where one was that is gone.
	return Found && ExportMap[*Found].Object.Get() == Object ? *Found : INDEX_NONE;
}

UObject* FLinkerLoad::FindKeptLink(const UObject* Owner, FName Member) const
{
	const FWeakObjectPtr* const Found = KeptLinks.Find(FLink(FWeakObjectPtr(Owner), Member));
	return Found ? Found->Get() : nullptr;
}

UObject* FLinkerLoad::FindOuterOf(int32 ExportIndex) const
{
	const FPackageIndex Outer = ExportMap[ExportIndex].OuterIndex;
	if (Outer.IsNull())
	{
		return LinkerRoot;
	}
	return Outer.IsExport() ? ExportMap[Outer.ToExport()].Object.Get() : ImportMap[Outer.ToImport()].XObject.Get();
}

UObject* FLinkerLoad::IndexToObject(FPackageIndex Index)
{
	if (Index.IsExport())
	{
		return CreateExport(Index.ToExport());
	}
	return Index.IsImport() ? CreateImport(Index.ToImport()) : nullptr;
}

UClass* FLinkerLoad::FindExportClass(int32 ExportIndex)
{
	const FPackageIndex ClassIndex = ExportMap[ExportIndex].ClassIndex;
	if (ClassIndex.IsNull())
	{
		return UClass::StaticClass();
	}
	UObject* const Object = IndexToObject(ClassIndex);
	UClass* const Class = Object && Object->IsA(UClass::StaticClass()) ? static_cast<UClass*>(Object) : nullptr;
	if (Class)
	{
		Preload(Class);
		return Class;
	}
	return UE::CoreUObject::FindOrCreatePlaceholderClass(FTopLevelAssetPath(FName(UnreadableClassesPackage), GetExportClassName(ExportIndex)));
}

UObject* FLinkerLoad::FindOuterOfExport(int32 ExportIndex)
{
	const FPackageIndex OuterIndex = ExportMap[ExportIndex].OuterIndex;
	return OuterIndex.IsNull() ? LinkerRoot : IndexToObject(OuterIndex);
}

bool FLinkerLoad::SpendMemory(int64 Bytes)
{
	MemoryLeft -= Bytes;
	return MemoryLeft >= 0;
}

UObject* FLinkerLoad::MakeExportObject(int32 ExportIndex, UClass* Class, UObject* Outer)
{
	const FObjectExport& Export = ExportMap[ExportIndex];
	EObjectFlags Flags = static_cast<EObjectFlags>((Export.ObjectFlags & RF_Load) | RF_NeedLoad | RF_NeedPostLoad | RF_WasLoaded);
	const bool bIsDefaultObject = (Export.ObjectFlags & RF_ClassDefaultObject) != 0;
	// Of a class that only stands in, the file's default object is not the class's own: it belongs into this package.
	const bool bIsOfItsClass = Class->GetDefaultObjectName() == Export.ObjectName && Class->GetOuter() == Outer;
	if (bIsDefaultObject && bIsOfItsClass)
	{
		UObject* const DefaultObject = Class->GetDefaultObject();
		DefaultObject->SetFlags(Flags);
		return DefaultObject;
	}
	Flags = static_cast<EObjectFlags>(Flags & ~RF_ClassDefaultObject);
	// A part that the outer's constructor made is the one to fill.
	UObject* const Existing = StaticFindObjectFast(nullptr, Outer, Export.ObjectName);
	if (Existing && Existing->GetClass() == Class)
	{
		Existing->SetFlags(Flags);
		return Existing;
	}
	if (Existing && Existing->HasAnyFlags(RF_DefaultSubObject) && !Existing->HasAnyFlags(RF_WasLoaded))
	{
		// A class of the project, which is known by its super alone, makes this part of a class of its own.
		Existing->Rename(nullptr, GetTransientPackageAsObject(),
			REN_ForceGlobalUnique | REN_DoNotDirty | REN_NonTransactional | REN_DontCreateRedirectors);
		Existing->MarkAsGarbage();
	}
	FStaticConstructObjectParameters Params(Class);
	Params.Outer = Outer;
	Params.Name = Export.ObjectName;
	Params.SetFlags = Flags;
	UObject* const Archetype = UObject::GetArchetypeFromRequiredInfo(Class, Outer, Export.ObjectName, Flags);
	const bool bHasOwnArchetype = Archetype != Class->GetDefaultObject(false);
	Preload(Archetype);
	// A few bytes could ask for a copy of a large archetype, many times. Where memory runs out the next objects are refused.
	const bool bMayCopy = bHasOwnArchetype && SpendMemory(MeasureCopy(*Archetype));
	// A stand-in's class is abstract, to keep others from making instances; a template lets this one be made.
	const bool bStandsIn = UE::CoreUObject::IsPlaceholder(Class);
	Params.Template = bStandsIn ? Class->GetDefaultObject() : bMayCopy ? Archetype
																	   : nullptr;
	return StaticConstructObject_Internal(Params);
}

UObject* FLinkerLoad::CreateExport(int32 ExportIndex)
{
	if (!ExportMap.IsValidIndex(ExportIndex) || !LinkerRoot)
	{
		return nullptr;
	}
	if (ExportMap[ExportIndex].Object.Get() || ExportsInCreation.Contains(ExportIndex))
	{
		return ExportMap[ExportIndex].Object.Get();
	}
	ExportsInCreation.Add(ExportIndex);
	UClass* const Class = FindExportClass(ExportIndex);
	if (UObject* const Super = IndexToObject(ExportMap[ExportIndex].SuperIndex))
	{
		Preload(Super);
	}
	UObject* const Outer = FindOuterOfExport(ExportIndex);
	// Making the class or the outer may have made this one.
	if (!ExportMap[ExportIndex].Object.Get() && Class && Outer && SpendMemory(GetSizeOfObject(Class)))
	{
		UObject* const Made = MakeExportObject(ExportIndex, Class, Outer);
		ExportMap[ExportIndex].Object = Made;
		ExportsByObject.Add(Made, ExportIndex);
	}
	ExportsInCreation.Remove(ExportIndex);
	if (!ExportMap[ExportIndex].Object.Get())
	{
		Errors.Add(FString::Printf(TEXT("export %d (%s) of class %s cannot be made"), ExportIndex, *GetExportPathName(ExportIndex), *GetExportClassPath(ExportIndex).ToString()));
		MarkKeptBytes();
	}
	return ExportMap[ExportIndex].Object.Get();
}

UObject* FLinkerLoad::FindImportInPackage(int32 ImportIndex, const FString& Path)
{
	FPackageIndex Outermost = FPackageIndex::FromImport(ImportIndex);
	for (int32 Depth = 0; Depth < MaxOuterDepth; ++Depth)
	{
		const FObjectResource* const Resource = FindResource(Outermost);
		if (!Resource || Resource->OuterIndex.IsNull())
		{
			break;
		}
		Outermost = Resource->OuterIndex;
	}
	const FObjectImport& Import = ImportMap[ImportIndex];
	const FName PackageName = Import.PackageName.IsNone() ? GetObjectName(Outermost) : Import.PackageName;
	const FString PackageText = PackageName.ToString();
	UClass* const AnyClass = nullptr;
	UObject* Found = StaticFindObject(AnyClass, nullptr, *Path);
	if (Found || PackageText.StartsWith(TEXT("/Script/")))
	{
		return Found;
	}
	UPackage* const Package = LoadPackage(nullptr, *PackageText, LOAD_NoWarn | LOAD_Quiet);
	Found = Package ? StaticFindObject(AnyClass, nullptr, *Path) : nullptr;
	if (Found || !Package || !Package->GetLinker())
	{
		return Found;
	}
	// The other package is being loaded at present and has not come to this object.
	FLinkerLoad* const Other = Package->GetLinker();
	const int32 ExportIndex = Other->FindExportIndex(Path);
	return ExportIndex == INDEX_NONE ? nullptr : Other->CreateExport(ExportIndex);
}

void FLinkerLoad::WarnOfMissingImport(int32 ImportIndex, const FString& Path)
{
	// What comes with the engine or with a module is missing here as a rule; what belongs to the project should be there.
	const bool bIsEngines = Path.StartsWith(TEXT("/Script/")) || Path.StartsWith(TEXT("/Engine/"));
	const bool bIsPackage = ImportMap[ImportIndex].OuterIndex.IsNull();
	if (!bIsEngines && !bIsPackage)
	{
		UE_LOG(LogClass, Warning, TEXT("%s refers to %s %s, which cannot be found. The reference is kept."), *Filename, *ImportMap[ImportIndex].ClassName.ToString(), *Path);
	}
}

UObject* FLinkerLoad::CreateImport(int32 ImportIndex)
{
	if (!ImportMap.IsValidIndex(ImportIndex) || ImportMap[ImportIndex].XObject.Get() || ImportsInCreation.Contains(ImportIndex))
	{
		return ImportMap.IsValidIndex(ImportIndex) ? ImportMap[ImportIndex].XObject.Get() : nullptr;
	}
	ImportsInCreation.Add(ImportIndex);
	const FString Path = GetImportPathName(ImportIndex);
	UObject* Object = FindImportInPackage(ImportIndex, Path);
	if (!Object)
	{
		WarnOfMissingImport(ImportIndex, Path);
		Object = UE::CoreUObject::FindOrCreatePlaceholder(GetImportClassPath(ImportIndex), Path);
	}
	ImportMap[ImportIndex].XObject = Object;
	ImportsInCreation.Remove(ImportIndex);
	return Object;
}

void FLinkerLoad::Preload(UObject* Object)
{
	if (!Object || !Object->HasAnyFlags(RF_NeedLoad))
	{
		return;
	}
	const int32 ExportIndex = FindExportOf(Object);
	if (ExportIndex != INDEX_NONE)
	{
		ReadExport(ExportIndex);
	}
	else if (FLinkerLoad* const Other = Object->GetOutermost()->GetLinker(); Other && Other != this)
	{
		Other->Preload(Object);
	}
}

bool FLinkerLoad::IsBeingRead(const UObject* Object)
{
	return GetObjectsInReading().Contains(Object);
}

void FLinkerLoad::NoteUnreadExport(int32 ExportIndex)
{
	const FString Path = GetExportPathName(ExportIndex);
	const FString Class = GetExportClassName(ExportIndex).ToString();
	const long long Offset = static_cast<long long>(ErrorPosition);
	if (IsPartlyDeclared(ExportMap[ExportIndex].Object->GetClass()))
	{
		UE_LOG(LogClass, Log, TEXT("%s: the bytes of export %d (%s) can be read by its class %s alone from offset %lld on. They are kept."), *Filename, ExportIndex, *Path, *Class, Offset);
		return;
	}
	Errors.Add(FString::Printf(TEXT("export %d (%s) of class %s is damaged at offset %lld"), ExportIndex, *Path, *Class, Offset));
	UE_LOG(LogClass, Error, TEXT("%s: %s"), *Filename, *Errors.Last());
}

void FLinkerLoad::ReadExport(int32 ExportIndex)
{
	UObject* const Object = ExportMap[ExportIndex].Object.Get();
	if (!Object || ReadExports.Contains(ExportIndex))
	{
		return;
	}
	ReadExports.Add(ExportIndex);
	Object->ClearFlags(RF_NeedLoad);
	if (UObject* const Outer = Object->GetOuter(); Outer && Outer->HasAnyFlags(RF_ClassDefaultObject))
	{
		Preload(Outer);
	}
	if (Object->HasAnyFlags(RF_InheritableComponentTemplate))
	{
		InheritValues(*Object, *this);
	}
	const int64 Start = ExportMap[ExportIndex].SerialOffset;
	const int64 End = Start + ExportMap[ExportIndex].SerialSize;
	const FReadWindow Window(Position, Limit, Start, End);
	GetObjectsInReading().Add(Object);
	Object->Serialize(*this);
	GetObjectsInReading().Pop();
	const bool bClassIsUnknown = UE::CoreUObject::IsPlaceholder(Object->GetClass());
	if (IsError() || bClassIsUnknown)
	{
		if (IsError() && !bClassIsUnknown)
		{
			NoteUnreadExport(ExportIndex);
		}
		ClearError();
		OpaqueObjects.Add(FWeakObjectPtr(Object));
		MarkKeptBytes();
	}
	else if (Position < End)
	{
		UnreadTails.Add(FWeakObjectPtr(Object), ReadBytes(Position, End - Position));
		MarkKeptBytes();
	}
}

void FLinkerLoad::LoadAllObjects()
{
	for (int32 Index = 0; Index < ExportMap.Num(); ++Index)
	{
		CreateExport(Index);
	}
	// Classes and structs first: their instances need them whole.
	for (const bool bStructs : {true, false})
	{
		for (int32 Index = 0; Index < ExportMap.Num(); ++Index)
		{
			const UObject* const Object = ExportMap[Index].Object.Get();
			if (Object && Object->IsA(UField::StaticClass()) == bStructs)
			{
				ReadExport(Index);
			}
		}
	}
	LoadMetaData();
	for (const FObjectExport& Export : ExportMap)
	{
		if (UObject* const Object = Export.Object.Get())
		{
			Object->ConditionalPostLoad();
		}
	}
	for (const FObjectExport& Export : ExportMap)
	{
		UObject* const Object = Export.Object.Get();
		if (Object && Object->IsAsset())
		{
			FCoreUObjectDelegates::OnAssetLoaded.Broadcast(Object);
		}
	}
}

void FLinkerLoad::TakeFingerprints()
{
	for (int32 Index = 0; Index < ExportMap.Num(); ++Index)
	{
		UObject* const Object = ExportMap[Index].Object.Get();
		if (Object && ReadExports.Contains(Index))
		{
			Fingerprints.Add(Index, ComputeFingerprint(Object, *this));
		}
		if (Object && ExportMap[Index].bIsAsset)
		{
			TArray<UObject::FAssetRegistryTag> Tags;
			Object->GetAssetRegistryTags(Tags);
			TMap<FName, FString>& Values = TagsAsLoaded.FindOrAdd(FWeakObjectPtr(Object));
			for (UObject::FAssetRegistryTag& Tag : Tags)
			{
				Values.Add(Tag.Name, MoveTemp(Tag.Value));
			}
		}
	}
	MetaDataFingerprint = ComputeMetaDataFingerprint(LinkerRoot);
}

bool FLinkerLoad::IsUnchanged(int32 ExportIndex) const
{
	UObject* const Object = ExportMap[ExportIndex].Object.Get();
	const uint64* const Fingerprint = Fingerprints.Find(ExportIndex);
	return Object && Fingerprint && *Fingerprint == ComputeFingerprint(Object, *this);
}

TMap<FName, FString> FLinkerLoad::GetTagsAsLoaded(const UObject* Asset) const
{
	const TMap<FName, FString>* const Found = TagsAsLoaded.Find(FWeakObjectPtr(Asset));
	return Found ? *Found : TMap<FName, FString>();
}

bool FLinkerLoad::IsMetaDataUnchanged() const
{
	return !Fingerprints.IsEmpty() && MetaDataFingerprint == ComputeMetaDataFingerprint(LinkerRoot);
}
