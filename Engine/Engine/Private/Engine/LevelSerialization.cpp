#include "Engine/Level.h"

#include "Engine/LevelScriptActor.h"
#include "Engine/LevelScriptBlueprint.h"
#include "GameFramework/Actor.h"
#include "GameFramework/WorldSettings.h"
#include "UObject/UObjectGlobals.h"

namespace
{
/** A reference to an object that may be of another class than ours, because ours is not the file's engine. */
template <typename T>
void SerializeReference(FArchive& Ar, TObjectPtr<T>& Known, TObjectPtr<UObject>& Unknown)
{
	UObject* Object = Known ? static_cast<UObject*>(Known.Get()) : Unknown.Get();
	Ar << Object;
	if (Ar.IsLoading())
	{
		Known = Cast<T>(Object);
		Unknown = Known ? nullptr : Object;
	}
}

/** How many elements a list has whose elements are not understood; an empty one is written. */
int32 SerializeCountOfUnread(FArchive& Ar)
{
	int32 Num = 0;
	Ar << Num;
	return Num;
}

int32 SerializeVisibility(FArchive& Ar, FPrecomputedVisibilityHandler& Handler)
{
	Ar << Handler.PrecomputedVisibilityCellBucketOriginXY << Handler.PrecomputedVisibilityCellSizeXY
	   << Handler.PrecomputedVisibilityCellSizeZ;
	Ar << Handler.PrecomputedVisibilityCellBucketSizeXY << Handler.PrecomputedVisibilityNumCellBuckets;
	return SerializeCountOfUnread(Ar);
}

int32 SerializeDistances(FArchive& Ar, FPrecomputedVolumeDistanceField& Field)
{
	Ar << Field.VolumeMaxDistance << Field.VolumeBox << Field.VolumeSizeX << Field.VolumeSizeY << Field.VolumeSizeZ;
	return SerializeCountOfUnread(Ar);
}
}

FArchive& operator<<(FArchive& Ar, FURL& URL)
{
	return Ar << URL.Protocol << URL.Host << URL.Map << URL.Portal << URL.Op << URL.Port << URL.Valid;
}

void ULevel::Serialize(FArchive& Ar)
{
	Super::Serialize(Ar);
	SerializeActors(Ar);
	Ar << URL;
	Ar << Model;
	Ar << ModelComponents;
	// Neither takes part in transactions.
	if (!Ar.IsTransacting())
	{
		SerializeReference(Ar, LevelScriptBlueprint, UnknownScriptBlueprint);
		SerializeReference(Ar, LevelScriptActor, UnknownScriptActor);
	}
	Ar << NavListStart;
	Ar << NavListEnd;
	if (Ar.IsPersistent())
	{
		SerializeBuiltData(Ar);
	}
}

void ULevel::SerializeActors(FArchive& Ar)
{
	TArray<TObjectPtr<UObject>> Listed;
	for (int32 Index = 0; Index < Actors.Num() && !Ar.IsLoading(); ++Index)
	{
		UObject* const Unknown = UnknownActors.IsValidIndex(Index) ? UnknownActors[Index].Get() : nullptr;
		Listed.Add(Actors[Index] ? Actors[Index].Get() : Unknown);
	}
	Ar << Listed;
	if (!Ar.IsLoading())
	{
		return;
	}
	Actors.Empty();
	UnknownActors.Empty();
	for (UObject* const Object : Listed)
	{
		AActor* const Actor = Cast<AActor>(Object);
		Actors.Add(Actor);
		UnknownActors.Add(Actor ? nullptr : Object);
	}
}

void ULevel::SerializeBuiltData(FArchive& Ar)
{
	if (Ar.IsSaving() && bBuiltDataIsUnread)
	{
		return;
	}
	const int64 Start = Ar.Tell();
	const bool bIsEmpty = SerializeVisibility(Ar, PrecomputedVisibilityHandler) == 0 &&
		SerializeDistances(Ar, PrecomputedVolumeDistanceField) == 0;
	bBuiltDataIsUnread = Ar.IsLoading() && !bIsEmpty && !Ar.IsError();
	if (bBuiltDataIsUnread)
	{
		// What is left unread here the package keeps and writes back.
		PrecomputedVisibilityHandler = FPrecomputedVisibilityHandler();
		PrecomputedVolumeDistanceField = FPrecomputedVolumeDistanceField();
		Ar.Seek(Start);
	}
}

void ULevel::AddReferencedObjects(UObject* InThis, FReferenceCollector& Collector)
{
	ULevel* const This = CastChecked<ULevel>(InThis);
	Collector.AddReferencedObjects(This->Actors);
	Collector.AddReferencedObjects(This->UnknownActors);
	Collector.AddReferencedObjects(This->ModelComponents);
	for (TObjectPtr<UObject>* const Reference :
		{&This->Model, &This->NavListStart, &This->NavListEnd, &This->UnknownScriptBlueprint, &This->UnknownScriptActor})
	{
		Collector.AddReferencedObject(*Reference);
	}
	Super::AddReferencedObjects(InThis, Collector);
}
