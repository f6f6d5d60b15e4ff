#include "Serialization/DuplicatedObject.h"

#include "UObject/Package.h"
#include "UObject/SoftObjectPtr.h"
#include "UObject/UObjectGlobals.h"
#include "UObject/UObjectHash.h"
#include "UObject/UnrealType.h"

namespace
{
/** Makes the copy of each object below the source, outers first. */
class FCopyMaker
{
public:
	explicit FCopyMaker(FObjectDuplicationParameters& InParameters)
		: Parameters(InParameters)
	{
	}

	UObject* Make(UObject* Source)
	{
		if (UObject* const* const Known = Copies.Find(Source))
		{
			return *Known;
		}
		if (Source != Parameters.SourceObject)
		{
			if (!Source->IsIn(Parameters.SourceObject) || Source->HasAnyFlags(RF_DuplicateTransient))
			{
				return nullptr;
			}
		}
		UObject* const Outer = Source == Parameters.SourceObject ? Parameters.DestOuter : Make(Source->GetOuter());
		return Outer ? MakeIn(Source, Outer) : nullptr;
	}

	TMap<UObject*, UObject*> Copies;
	TArray<UObject*> Sources;

private:
	UObject* MakeIn(UObject* Source, UObject* Outer)
	{
		const bool bRoot = Source == Parameters.SourceObject;
		const FName Name = bRoot ? Parameters.DestName : Source->GetFName();
		UObject* Copy = bRoot ? nullptr : StaticFindObjectFast(Source->GetClass(), Outer, Name);
		if (!Copy)
		{
			FStaticConstructObjectParameters Construct(bRoot && Parameters.DestClass ? Parameters.DestClass : Source->GetClass());
			Construct.Outer = Outer;
			Construct.Name = Name;
			Construct.SetFlags = static_cast<EObjectFlags>(Parameters.ApplyFlags | Source->GetMaskedFlags(Parameters.FlagMask));
			Construct.bCopyTransientsFromClassDefaults = true;
			Copy = StaticConstructObject_Internal(Construct);
		}
		if (Copy)
		{
			Copies.Add(Source, Copy);
			Sources.Add(Source);
		}
		return Copy;
	}

	FObjectDuplicationParameters& Parameters;
};
}

FDuplicateDataWriter::FDuplicateDataWriter(TArray<uint8>& InData, uint32 InPortFlags)
	: Data(InData)
{
	SetIsSaving(true);
	SetIsPersistent(false);
	ArNoDelta = true;
	ArAllowLazyLoading = false;
	SetPortFlags(PPF_Duplicate | InPortFlags);
}

void FDuplicateDataWriter::Serialize(void* Source, int64 Num)
{
	const int64 End = Offset + Num;
	if (End > Data.Num())
	{
		Data.SetNumUninitialized(static_cast<int32>(End));
	}
	FMemory::Memcpy(Data.GetData() + Offset, Source, static_cast<SIZE_T>(Num));
	Offset = End;
}

FArchive& FDuplicateDataWriter::operator<<(FName& Name)
{
	Serialize(&Name, sizeof(FName));
	return *this;
}

FArchive& FDuplicateDataWriter::operator<<(UObject*& Object)
{
	Serialize(&Object, sizeof(UObject*));
	return *this;
}

FDuplicateDataReader::FDuplicateDataReader(const TArray<uint8>& InData, uint32 InPortFlags, TFunction<UObject*(UObject*)> InMapObject)
	: Data(InData)
	, MapObject(MoveTemp(InMapObject))
{
	SetIsLoading(true);
	SetIsPersistent(false);
	ArAllowLazyLoading = false;
	SetPortFlags(PPF_Duplicate | InPortFlags);
}

void FDuplicateDataReader::Serialize(void* Target, int64 Num)
{
	if (Num < 0 || Offset + Num > Data.Num())
	{
		SetError();
		FMemory::Memzero(Target, static_cast<SIZE_T>(std::max<int64>(Num, 0)));
		return;
	}
	FMemory::Memcpy(Target, Data.GetData() + Offset, static_cast<SIZE_T>(Num));
	Offset += Num;
}

FArchive& FDuplicateDataReader::operator<<(FName& Name)
{
	Serialize(&Name, sizeof(FName));
	return *this;
}

FArchive& FDuplicateDataReader::operator<<(UObject*& Object)
{
	UObject* Source = nullptr;
	Serialize(&Source, sizeof(UObject*));
	UObject* const Mapped = Source ? MapObject(Source) : nullptr;
	Object = Mapped ? Mapped : Source;
	return *this;
}

FObjectDuplicationParameters::FObjectDuplicationParameters(UObject* InSourceObject, UObject* InDestOuter)
	: SourceObject(InSourceObject)
	, DestOuter(InDestOuter)
	, DestClass(InSourceObject ? InSourceObject->GetClass() : nullptr)
{
}

FObjectDuplicationParameters InitStaticDuplicateObjectParams(UObject const* SourceObject, UObject* DestOuter, const FName DestName,
	EObjectFlags FlagMask, UClass* DestClass, EDuplicateMode::Type DuplicateMode, EInternalObjectFlags InternalFlagsMask)
{
	FObjectDuplicationParameters Parameters(const_cast<UObject*>(SourceObject), DestOuter);
	Parameters.DestName = DestName;
	Parameters.FlagMask = FlagMask;
	Parameters.DestClass = DestClass ? DestClass : SourceObject->GetClass();
	Parameters.DuplicateMode = DuplicateMode;
	Parameters.InternalFlagMask = InternalFlagsMask;
	return Parameters;
}

UObject* StaticDuplicateObject(UObject const* SourceObject, UObject* DestOuter, const FName DestName, EObjectFlags FlagMask,
	UClass* DestClass, EDuplicateMode::Type DuplicateMode, EInternalObjectFlags InternalFlagsMask)
{
	FObjectDuplicationParameters Parameters =
		InitStaticDuplicateObjectParams(SourceObject, DestOuter, DestName, FlagMask, DestClass, DuplicateMode, InternalFlagsMask);
	return StaticDuplicateObjectEx(Parameters);
}

UObject* StaticDuplicateObjectEx(FObjectDuplicationParameters& Parameters)
{
	UObject* const Source = Parameters.SourceObject;
	if (!Source || !Parameters.DestOuter)
	{
		return nullptr;
	}
	constexpr EObjectFlags NeverCopied = static_cast<EObjectFlags>(RF_ClassDefaultObject | RF_MarkAsRootSet | RF_MarkAsNative |
		RF_NeedLoad | RF_NeedPostLoad | RF_NeedPostLoadSubobjects | RF_WasLoaded | RF_LoadCompleted | RF_BeginDestroyed |
		RF_FinishDestroyed | RF_MirroredGarbage | RF_HasExternalPackage | RF_BeingRegenerated | RF_TagGarbageTemp);
	Parameters.FlagMask = static_cast<EObjectFlags>(Parameters.FlagMask & ~NeverCopied);
	Source->PreDuplicate(Parameters);
	FCopyMaker Maker(Parameters);
	Maker.Copies = Parameters.DuplicationSeed;
	UObject* const Root = Maker.Make(Source);
	if (!Root)
	{
		return nullptr;
	}
	TArray<UObject*> Below;
	GetObjectsWithOuter(Source, Below, true, static_cast<EObjectFlags>(RF_DuplicateTransient), EInternalObjectFlags::Garbage);
	for (UObject* const Object : Below)
	{
		Maker.Make(Object);
	}
	for (int32 Index = 0; Index < Maker.Sources.Num(); ++Index)
	{
		UObject* const From = Maker.Sources[Index];
		UObject* const To = Maker.Copies[From];
		TArray<uint8> Data;
		FDuplicateDataWriter Writer(Data, Parameters.PortFlags);
		From->Serialize(Writer);
		FDuplicateDataReader Reader(Data, Parameters.PortFlags, [&Maker](UObject* Object)
			{ return Maker.Make(Object); });
		To->Serialize(Reader);
	}
	for (UObject* const From : Maker.Sources)
	{
		UObject* const To = Maker.Copies[From];
		if (Parameters.CreatedObjects)
		{
			Parameters.CreatedObjects->Add(From, To);
		}
		FMetaData::CopyMetadata(From, To);
	}
	for (UObject* const From : Maker.Sources)
	{
		Maker.Copies[From]->PostDuplicate(Parameters.DuplicateMode);
	}
	for (UObject* const From : Maker.Sources)
	{
		if (!Parameters.bSkipPostLoad)
		{
			Maker.Copies[From]->SetFlags(RF_NeedPostLoad);
			Maker.Copies[From]->ConditionalPostLoad();
		}
	}
	return Root;
}
