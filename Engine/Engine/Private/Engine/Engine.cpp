#include "Engine/Engine.h"

#include "Engine/World.h"
#include "Templates/Casts.h"
#include "UObject/GarbageCollection.h"
#include "UObject/Object.h"

DEFINE_LOG_CATEGORY_STATIC(LogEngine, Log, All);

UEngine* GEngine = nullptr;

FWorldContext& UEngine::CreateNewWorldContext(EWorldType::Type WorldType)
{
	FWorldContext* const Context = new FWorldContext;
	Context->WorldType = WorldType;
	WorldList.Add(Context);
	return *Context;
}

FWorldContext* UEngine::GetWorldContextFromWorld(const UWorld* InWorld)
{
	for (FWorldContext& Context : WorldList)
	{
		if (Context.World() == InWorld)
		{
			return &Context;
		}
	}
	return nullptr;
}

UWorld* UEngine::GetWorldFromContextObject(const UObject* Object, EGetWorldErrorMode ErrorMode) const
{
	UWorld* const World = Object ? Object->GetWorld() : nullptr;
	if (!World && ErrorMode != EGetWorldErrorMode::ReturnNull)
	{
		checkf(ErrorMode != EGetWorldErrorMode::Assert,
			TEXT("No world was found for object (%s) passed in to UEngine::GetWorldFromContextObject()."), *GetPathNameSafe(Object));
		UE_LOG(LogEngine, Warning, TEXT("No world was found for object (%s) passed in to UEngine::GetWorldFromContextObject()."),
			*GetPathNameSafe(Object));
	}
	return World;
}

void UEngine::Tick(float DeltaSeconds, bool bIdleMode)
{
	for (FWorldContext& Context : WorldList)
	{
		if (UWorld* const World = Context.World())
		{
			World->Tick(DeltaSeconds);
		}
	}
}

void UEngine::AddReferencedObjects(UObject* InThis, FReferenceCollector& Collector)
{
	for (FWorldContext& Context : CastChecked<UEngine>(InThis)->WorldList)
	{
		UWorld* World = Context.World();
		Collector.AddReferencedObject(World);
		Context.SetCurrentWorld(World);
	}
	Super::AddReferencedObjects(InThis, Collector);
}
