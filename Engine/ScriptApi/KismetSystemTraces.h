// Package: /Script/Engine
#pragma once

#include "Kismet/BlueprintFunctionLibrary.h"
#include "KismetSystemTraces.generated.h"

// Continues
UCLASS()
class ENGINE_API UKismetSystemLibrary : public UBlueprintFunctionLibrary
{
	GENERATED_BODY()

public:
	/** Finds the first thing that blocks a line. */
	UFUNCTION(BlueprintCallable, Category = "Collision",
		meta = (bIgnoreSelf = "true", WorldContext = "WorldContextObject", AutoCreateRefTerm = "ActorsToIgnore",
			DisplayName = "Line Trace By Channel", AdvancedDisplay = "TraceColor,TraceHitColor,DrawTime", Keywords = "raycast"))
	static bool LineTraceSingle(const UObject* WorldContextObject, const FVector Start, const FVector End, ETraceTypeQuery TraceChannel,
		bool bTraceComplex, const TArray<AActor*>& ActorsToIgnore, EDrawDebugTrace::Type DrawDebugType, FHitResult& OutHit,
		bool bIgnoreSelf, FLinearColor TraceColor = FLinearColor::Red, FLinearColor TraceHitColor = FLinearColor::Green,
		float DrawTime = 5.0f);

	/** Finds what a line touches, up to the first thing that blocks it. */
	UFUNCTION(BlueprintCallable, Category = "Collision",
		meta = (bIgnoreSelf = "true", WorldContext = "WorldContextObject", AutoCreateRefTerm = "ActorsToIgnore",
			DisplayName = "Multi Line Trace By Channel", AdvancedDisplay = "TraceColor,TraceHitColor,DrawTime", Keywords = "raycast"))
	static bool LineTraceMulti(const UObject* WorldContextObject, const FVector Start, const FVector End, ETraceTypeQuery TraceChannel,
		bool bTraceComplex, const TArray<AActor*>& ActorsToIgnore, EDrawDebugTrace::Type DrawDebugType, TArray<FHitResult>& OutHits,
		bool bIgnoreSelf, FLinearColor TraceColor = FLinearColor::Red, FLinearColor TraceHitColor = FLinearColor::Green,
		float DrawTime = 5.0f);

	/** Finds the first object of some types on a line. */
	UFUNCTION(BlueprintCallable, Category = "Collision",
		meta = (bIgnoreSelf = "true", WorldContext = "WorldContextObject", AutoCreateRefTerm = "ActorsToIgnore",
			DisplayName = "Line Trace For Objects", AdvancedDisplay = "TraceColor,TraceHitColor,DrawTime", Keywords = "raycast"))
	static bool LineTraceSingleForObjects(const UObject* WorldContextObject, const FVector Start, const FVector End,
		const TArray<TEnumAsByte<EObjectTypeQuery>>& ObjectTypes, bool bTraceComplex, const TArray<AActor*>& ActorsToIgnore,
		EDrawDebugTrace::Type DrawDebugType, FHitResult& OutHit, bool bIgnoreSelf, FLinearColor TraceColor = FLinearColor::Red,
		FLinearColor TraceHitColor = FLinearColor::Green, float DrawTime = 5.0f);

	/** Finds the first thing that blocks a line for a collision profile. */
	UFUNCTION(BlueprintCallable, Category = "Collision",
		meta = (bIgnoreSelf = "true", WorldContext = "WorldContextObject", AutoCreateRefTerm = "ActorsToIgnore",
			DisplayName = "Line Trace By Profile", AdvancedDisplay = "TraceColor,TraceHitColor,DrawTime", Keywords = "raycast"))
	static bool LineTraceSingleByProfile(const UObject* WorldContextObject, const FVector Start, const FVector End, FName ProfileName,
		bool bTraceComplex, const TArray<AActor*>& ActorsToIgnore, EDrawDebugTrace::Type DrawDebugType, FHitResult& OutHit,
		bool bIgnoreSelf, FLinearColor TraceColor = FLinearColor::Red, FLinearColor TraceHitColor = FLinearColor::Green,
		float DrawTime = 5.0f);

	/** Finds the first thing that blocks a moving sphere. */
	UFUNCTION(BlueprintCallable, Category = "Collision",
		meta = (bIgnoreSelf = "true", WorldContext = "WorldContextObject", AutoCreateRefTerm = "ActorsToIgnore",
			DisplayName = "Sphere Trace By Channel", AdvancedDisplay = "TraceColor,TraceHitColor,DrawTime", Keywords = "sweep"))
	static bool SphereTraceSingle(const UObject* WorldContextObject, const FVector Start, const FVector End, float Radius,
		ETraceTypeQuery TraceChannel, bool bTraceComplex, const TArray<AActor*>& ActorsToIgnore, EDrawDebugTrace::Type DrawDebugType,
		FHitResult& OutHit, bool bIgnoreSelf, FLinearColor TraceColor = FLinearColor::Red, FLinearColor TraceHitColor = FLinearColor::Green,
		float DrawTime = 5.0f);

	/** Finds the first thing that blocks a moving capsule. */
	UFUNCTION(BlueprintCallable, Category = "Collision",
		meta = (bIgnoreSelf = "true", WorldContext = "WorldContextObject", AutoCreateRefTerm = "ActorsToIgnore",
			DisplayName = "Capsule Trace By Channel", AdvancedDisplay = "TraceColor,TraceHitColor,DrawTime", Keywords = "sweep"))
	static bool CapsuleTraceSingle(const UObject* WorldContextObject, const FVector Start, const FVector End, float Radius,
		float HalfHeight, ETraceTypeQuery TraceChannel, bool bTraceComplex, const TArray<AActor*>& ActorsToIgnore,
		EDrawDebugTrace::Type DrawDebugType, FHitResult& OutHit, bool bIgnoreSelf, FLinearColor TraceColor = FLinearColor::Red,
		FLinearColor TraceHitColor = FLinearColor::Green, float DrawTime = 5.0f);

	/** Finds the first thing that blocks a moving box. */
	UFUNCTION(BlueprintCallable, Category = "Collision",
		meta = (bIgnoreSelf = "true", WorldContext = "WorldContextObject", AutoCreateRefTerm = "ActorsToIgnore",
			DisplayName = "Box Trace By Channel", AdvancedDisplay = "TraceColor,TraceHitColor,DrawTime", Keywords = "sweep"))
	static bool BoxTraceSingle(const UObject* WorldContextObject, const FVector Start, const FVector End, const FVector HalfSize,
		const FRotator Orientation, ETraceTypeQuery TraceChannel, bool bTraceComplex, const TArray<AActor*>& ActorsToIgnore,
		EDrawDebugTrace::Type DrawDebugType, FHitResult& OutHit, bool bIgnoreSelf, FLinearColor TraceColor = FLinearColor::Red,
		FLinearColor TraceHitColor = FLinearColor::Green, float DrawTime = 5.0f);

	/** Finds the actors that a sphere overlaps. */
	UFUNCTION(BlueprintCallable, Category = "Collision",
		meta = (WorldContext = "WorldContextObject", AutoCreateRefTerm = "ActorsToIgnore", DisplayName = "Sphere Overlap Actors"))
	static bool SphereOverlapActors(const UObject* WorldContextObject, const FVector SpherePos, float SphereRadius,
		const TArray<TEnumAsByte<EObjectTypeQuery>>& ObjectTypes, UClass* ActorClassFilter, const TArray<AActor*>& ActorsToIgnore,
		TArray<AActor*>& OutActors);

	/** Finds the actors that a box overlaps. */
	UFUNCTION(BlueprintCallable, Category = "Collision",
		meta = (WorldContext = "WorldContextObject", AutoCreateRefTerm = "ActorsToIgnore", DisplayName = "Box Overlap Actors"))
	static bool BoxOverlapActors(const UObject* WorldContextObject, const FVector BoxPos, FVector BoxExtent,
		const TArray<TEnumAsByte<EObjectTypeQuery>>& ObjectTypes, UClass* ActorClassFilter, const TArray<AActor*>& ActorsToIgnore,
		TArray<AActor*>& OutActors);

	/** Finds the actors that a capsule overlaps. */
	UFUNCTION(BlueprintCallable, Category = "Collision",
		meta = (WorldContext = "WorldContextObject", AutoCreateRefTerm = "ActorsToIgnore", DisplayName = "Capsule Overlap Actors"))
	static bool CapsuleOverlapActors(const UObject* WorldContextObject, const FVector CapsulePos, float Radius, float HalfHeight,
		const TArray<TEnumAsByte<EObjectTypeQuery>>& ObjectTypes, UClass* ActorClassFilter, const TArray<AActor*>& ActorsToIgnore,
		TArray<AActor*>& OutActors);

	/** Finds the components that a sphere overlaps. */
	UFUNCTION(BlueprintCallable, Category = "Collision",
		meta = (WorldContext = "WorldContextObject", AutoCreateRefTerm = "ActorsToIgnore", DisplayName = "Sphere Overlap Components"))
	static bool SphereOverlapComponents(const UObject* WorldContextObject, const FVector SpherePos, float SphereRadius,
		const TArray<TEnumAsByte<EObjectTypeQuery>>& ObjectTypes, UClass* ComponentClassFilter, const TArray<AActor*>& ActorsToIgnore,
		TArray<UPrimitiveComponent*>& OutComponents);

	/** Finds the components that a box overlaps. */
	UFUNCTION(BlueprintCallable, Category = "Collision",
		meta = (WorldContext = "WorldContextObject", AutoCreateRefTerm = "ActorsToIgnore", DisplayName = "Box Overlap Components"))
	static bool BoxOverlapComponents(const UObject* WorldContextObject, const FVector BoxPos, FVector Extent,
		const TArray<TEnumAsByte<EObjectTypeQuery>>& ObjectTypes, UClass* ComponentClassFilter, const TArray<AActor*>& ActorsToIgnore,
		TArray<UPrimitiveComponent*>& OutComponents);

	/** Finds the components that a capsule overlaps. */
	UFUNCTION(BlueprintCallable, Category = "Collision",
		meta = (WorldContext = "WorldContextObject", AutoCreateRefTerm = "ActorsToIgnore", DisplayName = "Capsule Overlap Components"))
	static bool CapsuleOverlapComponents(const UObject* WorldContextObject, const FVector CapsulePos, float Radius, float HalfHeight,
		const TArray<TEnumAsByte<EObjectTypeQuery>>& ObjectTypes, UClass* ComponentClassFilter, const TArray<AActor*>& ActorsToIgnore,
		TArray<UPrimitiveComponent*>& OutComponents);

	/** Finds the actors that a component would overlap at a place. */
	UFUNCTION(
		BlueprintCallable, Category = "Collision", meta = (AutoCreateRefTerm = "ActorsToIgnore", DisplayName = "Component Overlap Actors"))
	static bool ComponentOverlapActors(UPrimitiveComponent* Component, const FTransform& ComponentTransform,
		const TArray<TEnumAsByte<EObjectTypeQuery>>& ObjectTypes, UClass* ActorClassFilter, const TArray<AActor*>& ActorsToIgnore,
		TArray<AActor*>& OutActors);

	/** Finds the components that a component would overlap at a place. */
	UFUNCTION(BlueprintCallable, Category = "Collision",
		meta = (AutoCreateRefTerm = "ActorsToIgnore", DisplayName = "Component Overlap Components"))
	static bool ComponentOverlapComponents(UPrimitiveComponent* Component, const FTransform& ComponentTransform,
		const TArray<TEnumAsByte<EObjectTypeQuery>>& ObjectTypes, UClass* ComponentClassFilter, const TArray<AActor*>& ActorsToIgnore,
		TArray<UPrimitiveComponent*>& OutComponents);

	/** Owners of components, of a class. */
	UFUNCTION(BlueprintCallable, Category = "Actor")
	static void GetActorListFromComponentList(
		const TArray<UPrimitiveComponent*>& ComponentList, UClass* ActorClassFilter, TArray<AActor*>& OutActorList);

	/** Middle and half size of an actor. */
	UFUNCTION(BlueprintCallable, Category = "Actor")
	static void GetActorBounds(const AActor* Actor, FVector& Origin, FVector& BoxExtent);

	/** Middle, half size and radius of a component. */
	UFUNCTION(BlueprintCallable, Category = "Actor")
	static void GetComponentBounds(const USceneComponent* Component, FVector& Origin, FVector& BoxExtent, float& SphereRadius);

	/** Finds everything that of some object types in the way of a line. */
	UFUNCTION(BlueprintCallable, Category = "Collision",
		meta = (WorldContext = "WorldContextObject", bIgnoreSelf = "true", AutoCreateRefTerm = "ActorsToIgnore",
			DisplayName = "Multi Line Trace For Objects", AdvancedDisplay = "TraceColor,TraceHitColor,DrawTime", Keywords = "raycast"))
	static bool LineTraceMultiForObjects(const UObject* WorldContextObject, const FVector Start, const FVector End,
		const TArray<TEnumAsByte<EObjectTypeQuery>>& ObjectTypes, bool bTraceComplex, const TArray<AActor*>& ActorsToIgnore,
		EDrawDebugTrace::Type DrawDebugType, TArray<FHitResult>& OutHits, bool bIgnoreSelf, FLinearColor TraceColor = FLinearColor::Red,
		FLinearColor TraceHitColor = FLinearColor::Green, float DrawTime = 5.0f);

	/** Finds everything that meets or blocks, for a collision profile, a line. */
	UFUNCTION(BlueprintCallable, Category = "Collision",
		meta = (WorldContext = "WorldContextObject", bIgnoreSelf = "true", AutoCreateRefTerm = "ActorsToIgnore",
			DisplayName = "Multi Line Trace By Profile", AdvancedDisplay = "TraceColor,TraceHitColor,DrawTime", Keywords = "raycast"))
	static bool LineTraceMultiByProfile(const UObject* WorldContextObject, const FVector Start, const FVector End, FName ProfileName,
		bool bTraceComplex, const TArray<AActor*>& ActorsToIgnore, EDrawDebugTrace::Type DrawDebugType, TArray<FHitResult>& OutHits,
		bool bIgnoreSelf, FLinearColor TraceColor = FLinearColor::Red, FLinearColor TraceHitColor = FLinearColor::Green,
		float DrawTime = 5.0f);

	/** Finds the first thing that of some object types in the way of a moving sphere. */
	UFUNCTION(BlueprintCallable, Category = "Collision",
		meta = (WorldContext = "WorldContextObject", bIgnoreSelf = "true", AutoCreateRefTerm = "ActorsToIgnore",
			DisplayName = "Sphere Trace For Objects", AdvancedDisplay = "TraceColor,TraceHitColor,DrawTime", Keywords = "sweep"))
	static bool SphereTraceSingleForObjects(const UObject* WorldContextObject, const FVector Start, const FVector End, float Radius,
		const TArray<TEnumAsByte<EObjectTypeQuery>>& ObjectTypes, bool bTraceComplex, const TArray<AActor*>& ActorsToIgnore,
		EDrawDebugTrace::Type DrawDebugType, FHitResult& OutHit, bool bIgnoreSelf, FLinearColor TraceColor = FLinearColor::Red,
		FLinearColor TraceHitColor = FLinearColor::Green, float DrawTime = 5.0f);

	/** Finds the first thing that blocks, for a collision profile, a moving sphere. */
	UFUNCTION(BlueprintCallable, Category = "Collision",
		meta = (WorldContext = "WorldContextObject", bIgnoreSelf = "true", AutoCreateRefTerm = "ActorsToIgnore",
			DisplayName = "Sphere Trace By Profile", AdvancedDisplay = "TraceColor,TraceHitColor,DrawTime", Keywords = "sweep"))
	static bool SphereTraceSingleByProfile(const UObject* WorldContextObject, const FVector Start, const FVector End, float Radius,
		FName ProfileName, bool bTraceComplex, const TArray<AActor*>& ActorsToIgnore, EDrawDebugTrace::Type DrawDebugType,
		FHitResult& OutHit, bool bIgnoreSelf, FLinearColor TraceColor = FLinearColor::Red, FLinearColor TraceHitColor = FLinearColor::Green,
		float DrawTime = 5.0f);

	/** Finds everything that meets or blocks a moving sphere. */
	UFUNCTION(BlueprintCallable, Category = "Collision",
		meta = (WorldContext = "WorldContextObject", bIgnoreSelf = "true", AutoCreateRefTerm = "ActorsToIgnore",
			DisplayName = "Multi Sphere Trace By Channel", AdvancedDisplay = "TraceColor,TraceHitColor,DrawTime", Keywords = "sweep"))
	static bool SphereTraceMulti(const UObject* WorldContextObject, const FVector Start, const FVector End, float Radius,
		ETraceTypeQuery TraceChannel, bool bTraceComplex, const TArray<AActor*>& ActorsToIgnore, EDrawDebugTrace::Type DrawDebugType,
		TArray<FHitResult>& OutHits, bool bIgnoreSelf, FLinearColor TraceColor = FLinearColor::Red,
		FLinearColor TraceHitColor = FLinearColor::Green, float DrawTime = 5.0f);

	/** Finds everything that of some object types in the way of a moving sphere. */
	UFUNCTION(BlueprintCallable, Category = "Collision",
		meta = (WorldContext = "WorldContextObject", bIgnoreSelf = "true", AutoCreateRefTerm = "ActorsToIgnore",
			DisplayName = "Multi Sphere Trace For Objects", AdvancedDisplay = "TraceColor,TraceHitColor,DrawTime", Keywords = "sweep"))
	static bool SphereTraceMultiForObjects(const UObject* WorldContextObject, const FVector Start, const FVector End, float Radius,
		const TArray<TEnumAsByte<EObjectTypeQuery>>& ObjectTypes, bool bTraceComplex, const TArray<AActor*>& ActorsToIgnore,
		EDrawDebugTrace::Type DrawDebugType, TArray<FHitResult>& OutHits, bool bIgnoreSelf, FLinearColor TraceColor = FLinearColor::Red,
		FLinearColor TraceHitColor = FLinearColor::Green, float DrawTime = 5.0f);

	/** Finds everything that meets or blocks, for a collision profile, a moving sphere. */
	UFUNCTION(BlueprintCallable, Category = "Collision",
		meta = (WorldContext = "WorldContextObject", bIgnoreSelf = "true", AutoCreateRefTerm = "ActorsToIgnore",
			DisplayName = "Multi Sphere Trace By Profile", AdvancedDisplay = "TraceColor,TraceHitColor,DrawTime", Keywords = "sweep"))
	static bool SphereTraceMultiByProfile(const UObject* WorldContextObject, const FVector Start, const FVector End, float Radius,
		FName ProfileName, bool bTraceComplex, const TArray<AActor*>& ActorsToIgnore, EDrawDebugTrace::Type DrawDebugType,
		TArray<FHitResult>& OutHits, bool bIgnoreSelf, FLinearColor TraceColor = FLinearColor::Red,
		FLinearColor TraceHitColor = FLinearColor::Green, float DrawTime = 5.0f);

	/** Finds the first thing that of some object types in the way of a moving box. */
	UFUNCTION(BlueprintCallable, Category = "Collision",
		meta = (WorldContext = "WorldContextObject", bIgnoreSelf = "true", AutoCreateRefTerm = "ActorsToIgnore",
			DisplayName = "Box Trace For Objects", AdvancedDisplay = "TraceColor,TraceHitColor,DrawTime", Keywords = "sweep"))
	static bool BoxTraceSingleForObjects(const UObject* WorldContextObject, const FVector Start, const FVector End, const FVector HalfSize,
		const FRotator Orientation, const TArray<TEnumAsByte<EObjectTypeQuery>>& ObjectTypes, bool bTraceComplex,
		const TArray<AActor*>& ActorsToIgnore, EDrawDebugTrace::Type DrawDebugType, FHitResult& OutHit, bool bIgnoreSelf,
		FLinearColor TraceColor = FLinearColor::Red, FLinearColor TraceHitColor = FLinearColor::Green, float DrawTime = 5.0f);

	/** Finds the first thing that blocks, for a collision profile, a moving box. */
	UFUNCTION(BlueprintCallable, Category = "Collision",
		meta = (WorldContext = "WorldContextObject", bIgnoreSelf = "true", AutoCreateRefTerm = "ActorsToIgnore",
			DisplayName = "Box Trace By Profile", AdvancedDisplay = "TraceColor,TraceHitColor,DrawTime", Keywords = "sweep"))
	static bool BoxTraceSingleByProfile(const UObject* WorldContextObject, const FVector Start, const FVector End, const FVector HalfSize,
		const FRotator Orientation, FName ProfileName, bool bTraceComplex, const TArray<AActor*>& ActorsToIgnore,
		EDrawDebugTrace::Type DrawDebugType, FHitResult& OutHit, bool bIgnoreSelf, FLinearColor TraceColor = FLinearColor::Red,
		FLinearColor TraceHitColor = FLinearColor::Green, float DrawTime = 5.0f);

	/** Finds everything that meets or blocks a moving box. */
	UFUNCTION(BlueprintCallable, Category = "Collision",
		meta = (WorldContext = "WorldContextObject", bIgnoreSelf = "true", AutoCreateRefTerm = "ActorsToIgnore",
			DisplayName = "Multi Box Trace By Channel", AdvancedDisplay = "TraceColor,TraceHitColor,DrawTime", Keywords = "sweep"))
	static bool BoxTraceMulti(const UObject* WorldContextObject, const FVector Start, const FVector End, const FVector HalfSize,
		const FRotator Orientation, ETraceTypeQuery TraceChannel, bool bTraceComplex, const TArray<AActor*>& ActorsToIgnore,
		EDrawDebugTrace::Type DrawDebugType, TArray<FHitResult>& OutHits, bool bIgnoreSelf, FLinearColor TraceColor = FLinearColor::Red,
		FLinearColor TraceHitColor = FLinearColor::Green, float DrawTime = 5.0f);

	/** Finds everything that of some object types in the way of a moving box. */
	UFUNCTION(BlueprintCallable, Category = "Collision",
		meta = (WorldContext = "WorldContextObject", bIgnoreSelf = "true", AutoCreateRefTerm = "ActorsToIgnore",
			DisplayName = "Multi Box Trace For Objects", AdvancedDisplay = "TraceColor,TraceHitColor,DrawTime", Keywords = "sweep"))
	static bool BoxTraceMultiForObjects(const UObject* WorldContextObject, const FVector Start, const FVector End, const FVector HalfSize,
		const FRotator Orientation, const TArray<TEnumAsByte<EObjectTypeQuery>>& ObjectTypes, bool bTraceComplex,
		const TArray<AActor*>& ActorsToIgnore, EDrawDebugTrace::Type DrawDebugType, TArray<FHitResult>& OutHits, bool bIgnoreSelf,
		FLinearColor TraceColor = FLinearColor::Red, FLinearColor TraceHitColor = FLinearColor::Green, float DrawTime = 5.0f);

	/** Finds everything that meets or blocks, for a collision profile, a moving box. */
	UFUNCTION(BlueprintCallable, Category = "Collision",
		meta = (WorldContext = "WorldContextObject", bIgnoreSelf = "true", AutoCreateRefTerm = "ActorsToIgnore",
			DisplayName = "Multi Box Trace By Profile", AdvancedDisplay = "TraceColor,TraceHitColor,DrawTime", Keywords = "sweep"))
	static bool BoxTraceMultiByProfile(const UObject* WorldContextObject, const FVector Start, const FVector End, const FVector HalfSize,
		const FRotator Orientation, FName ProfileName, bool bTraceComplex, const TArray<AActor*>& ActorsToIgnore,
		EDrawDebugTrace::Type DrawDebugType, TArray<FHitResult>& OutHits, bool bIgnoreSelf, FLinearColor TraceColor = FLinearColor::Red,
		FLinearColor TraceHitColor = FLinearColor::Green, float DrawTime = 5.0f);

	/** Finds the first thing that of some object types in the way of a moving capsule. */
	UFUNCTION(BlueprintCallable, Category = "Collision",
		meta = (WorldContext = "WorldContextObject", bIgnoreSelf = "true", AutoCreateRefTerm = "ActorsToIgnore",
			DisplayName = "Capsule Trace For Objects", AdvancedDisplay = "TraceColor,TraceHitColor,DrawTime", Keywords = "sweep"))
	static bool CapsuleTraceSingleForObjects(const UObject* WorldContextObject, const FVector Start, const FVector End, float Radius,
		float HalfHeight, const TArray<TEnumAsByte<EObjectTypeQuery>>& ObjectTypes, bool bTraceComplex,
		const TArray<AActor*>& ActorsToIgnore, EDrawDebugTrace::Type DrawDebugType, FHitResult& OutHit, bool bIgnoreSelf,
		FLinearColor TraceColor = FLinearColor::Red, FLinearColor TraceHitColor = FLinearColor::Green, float DrawTime = 5.0f);

	/** Finds the first thing that blocks, for a collision profile, a moving capsule. */
	UFUNCTION(BlueprintCallable, Category = "Collision",
		meta = (WorldContext = "WorldContextObject", bIgnoreSelf = "true", AutoCreateRefTerm = "ActorsToIgnore",
			DisplayName = "Capsule Trace By Profile", AdvancedDisplay = "TraceColor,TraceHitColor,DrawTime", Keywords = "sweep"))
	static bool CapsuleTraceSingleByProfile(const UObject* WorldContextObject, const FVector Start, const FVector End, float Radius,
		float HalfHeight, FName ProfileName, bool bTraceComplex, const TArray<AActor*>& ActorsToIgnore, EDrawDebugTrace::Type DrawDebugType,
		FHitResult& OutHit, bool bIgnoreSelf, FLinearColor TraceColor = FLinearColor::Red, FLinearColor TraceHitColor = FLinearColor::Green,
		float DrawTime = 5.0f);

	/** Finds everything that meets or blocks a moving capsule. */
	UFUNCTION(BlueprintCallable, Category = "Collision",
		meta = (WorldContext = "WorldContextObject", bIgnoreSelf = "true", AutoCreateRefTerm = "ActorsToIgnore",
			DisplayName = "Multi Capsule Trace By Channel", AdvancedDisplay = "TraceColor,TraceHitColor,DrawTime", Keywords = "sweep"))
	static bool CapsuleTraceMulti(const UObject* WorldContextObject, const FVector Start, const FVector End, float Radius, float HalfHeight,
		ETraceTypeQuery TraceChannel, bool bTraceComplex, const TArray<AActor*>& ActorsToIgnore, EDrawDebugTrace::Type DrawDebugType,
		TArray<FHitResult>& OutHits, bool bIgnoreSelf, FLinearColor TraceColor = FLinearColor::Red,
		FLinearColor TraceHitColor = FLinearColor::Green, float DrawTime = 5.0f);

	/** Finds everything that of some object types in the way of a moving capsule. */
	UFUNCTION(BlueprintCallable, Category = "Collision",
		meta = (WorldContext = "WorldContextObject", bIgnoreSelf = "true", AutoCreateRefTerm = "ActorsToIgnore",
			DisplayName = "Multi Capsule Trace For Objects", AdvancedDisplay = "TraceColor,TraceHitColor,DrawTime", Keywords = "sweep"))
	static bool CapsuleTraceMultiForObjects(const UObject* WorldContextObject, const FVector Start, const FVector End, float Radius,
		float HalfHeight, const TArray<TEnumAsByte<EObjectTypeQuery>>& ObjectTypes, bool bTraceComplex,
		const TArray<AActor*>& ActorsToIgnore, EDrawDebugTrace::Type DrawDebugType, TArray<FHitResult>& OutHits, bool bIgnoreSelf,
		FLinearColor TraceColor = FLinearColor::Red, FLinearColor TraceHitColor = FLinearColor::Green, float DrawTime = 5.0f);

	/** Finds everything that meets or blocks, for a collision profile, a moving capsule. */
	UFUNCTION(BlueprintCallable, Category = "Collision",
		meta = (WorldContext = "WorldContextObject", bIgnoreSelf = "true", AutoCreateRefTerm = "ActorsToIgnore",
			DisplayName = "Multi Capsule Trace By Profile", AdvancedDisplay = "TraceColor,TraceHitColor,DrawTime", Keywords = "sweep"))
	static bool CapsuleTraceMultiByProfile(const UObject* WorldContextObject, const FVector Start, const FVector End, float Radius,
		float HalfHeight, FName ProfileName, bool bTraceComplex, const TArray<AActor*>& ActorsToIgnore, EDrawDebugTrace::Type DrawDebugType,
		TArray<FHitResult>& OutHits, bool bIgnoreSelf, FLinearColor TraceColor = FLinearColor::Red,
		FLinearColor TraceHitColor = FLinearColor::Green, float DrawTime = 5.0f);
};
