#include "UObject/LinkerSave.h"

#include "TaggedProperties.h"
#include "UObject/Casts.h"
#include "UObject/Class.h"
#include "UObject/LazyObjectPtr.h"
#include "UObject/LinkerLoad.h"
#include "UObject/ObjectPtr.h"
#include "UObject/ObjectRedirector.h"
#include "UObject/Package.h"
#include "UObject/PlaceholderObject.h"
#include "UObject/PropertyTag.h"
#include "UObject/UObjectGlobals.h"
#include "UObject/SoftObjectPtr.h"

namespace
{
FName GetPlainName(const FName& Name)
{
	return FName(Name, NAME_NO_NUMBER_INTERNAL);
}
}

FLinkerSave::FLinkerSave(UPackage* Package, const FString& InFilename)
{
	LinkerRoot = Package;
	Filename = InFilename;
	SetIsSaving(true);
	SetIsPersistent(true);
	SetUEVer(GPackageFileUEVersion);
	Summary.PackageName = Package->GetName();
	// Entry 0 is None's and the package's own, as readers that list names expect to find both.
	MapName(NAME_None);
	MapName(Package->GetFName());
}

void FLinkerSave::StartFromTablesOf(FLinkerLoad& Loaded)
{
	Origin = &Loaded;
	Summary = Loaded.Summary;
	SetUEVer(Loaded.UEVer());
	SetLicenseeUEVer(Loaded.LicenseeUEVer());
	SetFilterEditorOnly(Loaded.IsFilterEditorOnly());
	SetCustomVersions(Loaded.Summary.CustomVersions);
	NameMap.Empty();
	NameIndices.Empty();
	for (const FName& Name : Loaded.NameMap)
	{
		if (Name.GetNumber() == 0)
		{
			NameIndices.FindOrAdd(Name.GetDisplayIndex(), NameMap.Num());
		}
		NameMap.Add(Name);
	}
	for (const FObjectImport& Import : Loaded.ImportMap)
	{
		ImportMap.Add(Import);
		if (UObject* const Object = Import.XObject.Get())
		{
			ObjectIndices.FindOrAdd(Object, FPackageIndex::FromImport(ImportMap.Num() - 1));
		}
	}
	for (const FObjectExport& Export : Loaded.ExportMap)
	{
		ExportMap.Add(Export);
		UObject* const Object = Export.Object.Get();
		if (Object && !IsDeleted(ExportMap.Num() - 1, Object))
		{
			ObjectIndices.Add(Object, FPackageIndex::FromExport(ExportMap.Num() - 1));
		}
	}
	for (const FSoftObjectPath& Path : Loaded.SoftObjectPathList)
	{
		SoftPathIndices.FindOrAdd(Path, SoftObjectPathList.Num());
		SoftObjectPathList.Add(Path);
	}
	SoftPackageReferenceList = Loaded.SoftPackageReferenceList;
	UsedImports.Init(false, ImportMap.Num());
}

void FLinkerSave::Seek(int64 InPos)
{
	if (InPos < 0 || InPos > Payload.Num())
	{
		SetError();
		return;
	}
	Position = InPos;
}

void FLinkerSave::Serialize(void* Data, int64 Length)
{
	if (Length <= 0 || IsError())
	{
		return;
	}
	if (Position + Length > MAX_int32)
	{
		SetError();
		return;
	}
	if (Position + Length > Payload.Num())
	{
		Payload.AddUninitialized(static_cast<int32>(Position + Length - Payload.Num()));
	}
	FMemory::Memcpy(Payload.GetData() + Position, Data, Length);
	Position += Length;
}

void FLinkerSave::UsingCustomVersion(const FGuid& Guid)
{
	// In its own form a package has its own versions: what it lacks is written as it was before that version.
	if (Origin)
	{
		return;
	}
	FArchive::UsingCustomVersion(Guid);
	Summary.CustomVersions = GetCustomVersions();
}

int32 FLinkerSave::MapName(const FName& Name)
{
	const FName Plain = GetPlainName(Name);
	if (const int32* const Found = NameIndices.Find(Plain.GetDisplayIndex()))
	{
		return *Found;
	}
	NameIndices.Add(Plain.GetDisplayIndex(), NameMap.Num());
	return NameMap.Add(Plain);
}

bool FLinkerSave::IsSaved(const UObject* Object) const
{
	if (!Object->IsIn(LinkerRoot))
	{
		return IsValid(Object) && Object->GetOutermost() != GetTransientPackage();
	}
	for (const UObject* Outer = Object; Outer; Outer = Outer->GetOuter())
	{
		// An object of a class that is not saved could not be made again: a skeleton class's default object.
		const UClass* const Class = Outer->GetClass();
		const bool bTransientClass = Class->HasAnyFlags(RF_Transient) && Class->IsIn(LinkerRoot);
		if (Outer->HasAnyFlags(RF_Transient) || bTransientClass || !IsValid(Outer))
		{
			return false;
		}
	}
	return true;
}

FPackageIndex FLinkerSave::MapObject(UObject* Object)
{
	if (!Object || !IsSaved(Object))
	{
		return FPackageIndex();
	}
	const FPackageIndex* const Found = ObjectIndices.Find(Object);
	const FPackageIndex Index = Found ? *Found : Object->IsIn(LinkerRoot) ? AddExport(Object)
																		  : AddImport(Object);
	if (Index.IsImport() && UsedImports.IsValidIndex(Index.ToImport()))
	{
		UsedImports[Index.ToImport()] = true;
	}
	return Index;
}

FPackageIndex FLinkerSave::AddExport(UObject* Object)
{
	if (const FPackageIndex* const Found = ObjectIndices.Find(Object))
	{
		return *Found;
	}
	if (!IsSaved(Object) || !Object->IsIn(LinkerRoot))
	{
		return FPackageIndex();
	}
	if (Object->GetOuter() != LinkerRoot)
	{
		AddExport(Object->GetOuter());
	}
	if (const FPackageIndex* const Found = ObjectIndices.Find(Object))
	{
		return *Found;
	}
	const FPackageIndex Index = FPackageIndex::FromExport(ExportMap.Num());
	ExportMap.AddDefaulted_GetRef().Object = Object;
	ObjectIndices.Add(Object, Index);
	return Index;
}

FPackageIndex FLinkerSave::AddImport(UObject* Object)
{
	if (Object == LinkerRoot)
	{
		return FPackageIndex();
	}
	const FPackageIndex Outer = Object->GetOuter() ? MapObject(Object->GetOuter()) : FPackageIndex();
	FObjectImport Import;
	Import.ObjectName = Object->GetFName();
	Import.ClassName = Object->GetClass()->GetFName();
	Import.ClassPackage = Object->GetClass()->GetOutermost()->GetFName();
	Import.OuterIndex = Outer;
	Import.XObject = Object;
	MapName(Import.ObjectName);
	MapName(Import.ClassName);
	MapName(Import.ClassPackage);
	const FPackageIndex Index = FPackageIndex::FromImport(ImportMap.Add(Import));
	ObjectIndices.Add(Object, Index);
	return Index;
}

FArchive& FLinkerSave::operator<<(FName& Value)
{
	int32 Index = MapName(Value);
	int32 Number = Value.GetNumber();
	FArchive& Ar = *this;
	return Ar << Index << Number;
}

FArchive& FLinkerSave::operator<<(UObject*& Value)
{
	FPackageIndex Index = MapObject(Value);
	FArchive& Ar = *this;
	return Ar << Index;
}

FArchive& FLinkerSave::operator<<(FObjectPtr& Value)
{
	return *this << Value.GetRaw();
}

FArchive& FLinkerSave::operator<<(FLazyObjectPtr& Value)
{
	FUniqueObjectGuid Guid = Value.GetUniqueID();
	FArchive& Ar = *this;
	return Ar << Guid;
}

FArchive& FLinkerSave::operator<<(FSoftObjectPath& Value)
{
	if (UEVer() < EUnrealEngineObjectUE5Version::ADD_SOFTOBJECTPATH_LIST)
	{
		const FName PackageName = Value.GetLongPackageFName();
		if (!PackageName.IsNone() && PackageName != LinkerRoot->GetFName())
		{
			SoftPackageReferenceList.AddUnique(PackageName);
		}
		Value.SerializePath(*this);
		return *this;
	}
	int32 Index = SoftObjectPathList.Num();
	if (const int32* const Found = SoftPathIndices.Find(Value))
	{
		Index = *Found;
	}
	else
	{
		SoftPathIndices.Add(Value, Index);
		SoftObjectPathList.Add(Value);
	}
	FArchive& Ar = *this;
	return Ar << Index;
}

FArchive& FLinkerSave::operator<<(FSoftObjectPtr& Value)
{
	return *this << Value.GetUniqueID();
}

FArchive& FLinkerSave::operator<<(FWeakObjectPtr& Value)
{
	UObject* Object = Value.Get();
	return *this << Object;
}

void FLinkerSave::MarkScriptSerializationStart(const UObject* Object)
{
	if (ExportInWork != INDEX_NONE && ExportMap[ExportInWork].Object.Get() == Object)
	{
		ExportMap[ExportInWork].ScriptSerializationStartOffset = Position - ExportMap[ExportInWork].SerialOffset;
	}
}

void FLinkerSave::MarkScriptSerializationEnd(const UObject* Object)
{
	if (ExportInWork != INDEX_NONE && ExportMap[ExportInWork].Object.Get() == Object)
	{
		ExportMap[ExportInWork].ScriptSerializationEndOffset = Position - ExportMap[ExportInWork].SerialOffset;
	}
}

bool FLinkerSave::IsDeleted(int32 ExportIndex, const UObject* Object) const
{
	const bool bIsOfOrigin = Origin && ExportIndex < Origin->ExportMap.Num();
	if (!bIsOfOrigin || !Object)
	{
		return bIsOfOrigin && Origin->IsDeleted(ExportIndex);
	}
	const bool bHasMoved = Origin->ExportMap[ExportIndex].OuterIndex.IsImport() ? false : !Object->IsIn(LinkerRoot);
	return bHasMoved || !IsSaved(Object);
}

bool FLinkerSave::KeepsBytes(int32 ExportIndex, UObject* Object) const
{
	if (!Origin || ExportIndex >= Origin->ExportMap.Num())
	{
		return false;
	}
	return !Object || Origin->MustKeepBytes(Object) || (!bWritesUnchanged && Origin->IsUnchanged(ExportIndex));
}

/** The table's entry, with what the origin's entry says beyond what the object itself can tell. */
FObjectExport FLinkerSave::DescribeExport(int32 ExportIndex, UObject* Object)
{
	const bool bIsOfOrigin = Origin && ExportIndex < Origin->ExportMap.Num();
	FObjectExport Described = bIsOfOrigin ? Origin->ExportMap[ExportIndex] : FObjectExport();
	Described.Object = Object;
	Described.ObjectName = Object->GetFName();
	Described.ObjectFlags = static_cast<EObjectFlags>(Object->GetFlags() & RF_Load);
	Described.bIsAsset = bIsOfOrigin ? Described.bIsAsset : Object->IsAsset();
	Described.ClassIndex = Object->GetClass() == UClass::StaticClass() ? FPackageIndex() : MapObject(Object->GetClass());
	Described.OuterIndex = MapObject(Object->GetOuter());
	const UStruct* const Struct = Cast<UStruct>(Object);
	Described.SuperIndex = Struct ? MapObject(Struct->GetSuperStruct()) : Described.SuperIndex;
	Described.ScriptSerializationStartOffset = Described.ScriptSerializationEndOffset = 0;
	MapName(Described.ObjectName);
	return Described;
}

void FLinkerSave::WriteExport(int32 ExportIndex)
{
	UObject* const Object = ExportMap[ExportIndex].Object.Get();
	const int64 Start = Payload.Num();
	Position = Start;
	if (IsDeleted(ExportIndex, Object))
	{
		bIsChanged = true;
		WriteDeletedExport(ExportIndex);
		return;
	}
	if (!KeepsBytes(ExportIndex, Object))
	{
		bIsChanged |= !bWritesUnchanged;
		WriteValues(ExportIndex, Object);
		return;
	}
	const TArray<uint8> Kept = Origin->GetExportBytes(ExportIndex);
	if (Kept.Num() != Origin->ExportMap[ExportIndex].SerialSize)
	{
		SetError();
		return;
	}
	ExportMap[ExportIndex].SerialOffset = Start;
	const bool bIsRenamed = Object && (Object->GetFName() != ExportMap[ExportIndex].ObjectName || Object->GetOuter() != Origin->FindOuterOf(ExportIndex));
	if (bIsRenamed)
	{
		bIsChanged = true;
		ExportMap[ExportIndex].ObjectName = Object->GetFName();
		ExportMap[ExportIndex].OuterIndex = MapObject(Object->GetOuter());
	}
	MarkImportsIn(TArrayView<const uint8>(Kept));
	Serialize(const_cast<uint8*>(Kept.GetData()), Kept.Num());
}

void FLinkerSave::Refuse(FString&& Reason)
{
	if (!IsError())
	{
		Refusal = MoveTemp(Reason);
		SetError();
	}
}

TArrayView<const FLinkerSave::FTagOfOrigin> FLinkerSave::GetTagsOfOrigin(const void* Object) const
{
	const bool bIsInWork = ExportInWork != INDEX_NONE && ExportMap[ExportInWork].Object.Get() == Object;
	return bIsInWork ? TArrayView<const FTagOfOrigin>(TagsOfOrigin) : TArrayView<const FTagOfOrigin>();
}

TArray<FLinkerSave::FTagOfOrigin> FLinkerSave::ReadTagsOfOrigin(int32 ExportIndex) const
{
	const bool bHasTags = Origin && ExportIndex < Origin->ExportMap.Num() && !Origin->ExportMap[ExportIndex].ClassIndex.IsNull();
	if (!bHasTags)
	{
		return {};
	}
	const FObjectExport& Export = Origin->ExportMap[ExportIndex];
	const int64 OldPosition = Origin->Tell();
	const int64 OldLimit = Origin->LimitReads(Export.SerialOffset + Export.SerialSize);
	Origin->Seek(Export.SerialOffset);
	FArchive& Ar = *Origin;
	UE::CoreUObject::Private::SerializeClassControl(Ar);
	TArray<FTagOfOrigin> Tags;
	while (!Ar.IsError())
	{
		FPropertyTag Tag;
		Ar << Tag;
		if (Tag.Name.IsNone())
		{
			break;
		}
		Tags.Add({Tag.Name, Tag.ArrayIndex, Tag.HasPropertyGuid ? Tag.PropertyGuid : FGuid()});
		Ar.Seek(Ar.Tell() + Tag.Size);
	}
	const bool bIsDamaged = Ar.IsError();
	Ar.ClearError();
	Origin->LimitReads(OldLimit);
	Origin->Seek(OldPosition);
	return bIsDamaged ? TArray<FTagOfOrigin>() : Tags;
}

void FLinkerSave::WriteValues(int32 ExportIndex, UObject* Object)
{
	const int64 Start = Position;
	FObjectExport Described = DescribeExport(ExportIndex, Object);
	Described.SerialOffset = Start;
	ExportMap[ExportIndex] = Described;
	TagsOfOrigin = ReadTagsOfOrigin(ExportIndex);
	ExportInWork = ExportIndex;
	Object->Serialize(*this);
	ExportInWork = INDEX_NONE;
	if (const TArray<uint8>* const Tail = Origin ? Origin->FindUnreadTail(Object) : nullptr)
	{
		MarkImportsIn(TArrayView<const uint8>(*Tail));
		Serialize(const_cast<uint8*>(Tail->GetData()), Tail->Num());
	}
	ExportMap[ExportIndex].SerialSize = Position - Start;
}

/** The entry's number is in use by bytes that are kept, so it stays, as a redirector to nothing. */
void FLinkerSave::WriteDeletedExport(int32 ExportIndex)
{
	FObjectExport Redirector;
	Redirector.ObjectName = ExportMap[ExportIndex].ObjectName;
	Redirector.OuterIndex = ExportMap[ExportIndex].OuterIndex;
	Redirector.ClassIndex = MapObject(UObjectRedirector::StaticClass());
	Redirector.SerialOffset = Position;
	uint8 Control = 0;
	FName NoProperties;
	bool bHasGuid = false;
	FPackageIndex Destination;
	FArchive& Ar = *this;
	if (UEVer() >= EUnrealEngineObjectUE5Version::PROPERTY_TAG_EXTENSION_AND_OVERRIDABLE_SERIALIZATION)
	{
		Ar << Control;
	}
	Ar << NoProperties;
	Redirector.ScriptSerializationEndOffset = Position - Redirector.SerialOffset;
	Ar << bHasGuid << Destination;
	Redirector.SerialSize = Position - Redirector.SerialOffset;
	ExportMap[ExportIndex] = Redirector;
}

bool FLinkerSave::WriteExports(FString& OutError)
{
	// Writing one may add others at the end.
	for (int32 Index = 0; Index < ExportMap.Num(); ++Index)
	{
		UObject* const Object = ExportMap[Index].Object.Get();
		if (!Origin && Object && UE::CoreUObject::IsPlaceholder(Object->GetClass()))
		{
			OutError = FString::Printf(TEXT("the values of %s are of the class %s, which is not known here, and the file that they came from has been let go"), *Object->GetPathName(), *Object->GetClass()->GetPathName());
			return false;
		}
		WriteExport(Index);
		if (IsError() && !Refusal.IsEmpty())
		{
			OutError = Refusal;
			return false;
		}
		if (IsError())
		{
			OutError = FString::Printf(TEXT("%s cannot be written in the form of package version %d/%d"), Object ? *Object->GetPathName() : *GetExportPathName(Index), UEVer().FileVersionUE4, UEVer().FileVersionUE5);
			return false;
		}
	}
	return true;
}

TArray<uint8> FLinkerSave::MakeFile(FString& OutError)
{
	return Origin ? MakeFileOfOrigin(OutError) : MakeNewFile(OutError);
}
