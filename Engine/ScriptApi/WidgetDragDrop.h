// Package: /Script/UMG
#pragma once

#include "CoreMinimal.h"
#include "WidgetDragDrop.generated.h"

DECLARE_DYNAMIC_MULTICAST_DELEGATE_OneParam(FOnDragDropMulticast, UDragDropOperation*, Operation);

/** Something that is dragged. */
UCLASS(BlueprintType, Blueprintable)
class UMG_API UDragDropOperation : public UObject
{
	GENERATED_BODY()

public:
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Drag and Drop", meta = (ExposeOnSpawn = "true"))
	FString Tag;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Drag and Drop", meta = (ExposeOnSpawn = "true"))
	TObjectPtr<UObject> Payload;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Drag and Drop", meta = (ExposeOnSpawn = "true"))
	TObjectPtr<UWidget> DefaultDragVisual;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Drag and Drop", meta = (ExposeOnSpawn = "true"))
	EDragPivot Pivot;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Drag and Drop", meta = (ExposeOnSpawn = "true"))
	FVector2D Offset;

	UPROPERTY(BlueprintAssignable, Category = "Drag and Drop")
	FOnDragDropMulticast OnDrop;

	UPROPERTY(BlueprintAssignable, Category = "Drag and Drop")
	FOnDragDropMulticast OnDragCancelled;

	UPROPERTY(BlueprintAssignable, Category = "Drag and Drop")
	FOnDragDropMulticast OnDragged;

	/** When it is dropped on something that takes it. */
	UFUNCTION(BlueprintNativeEvent, BlueprintCallable, Category = "Drag and Drop")
	void Drop(const FPointerEvent& PointerEvent);

	/** When it is dropped where nothing takes it. */
	UFUNCTION(BlueprintNativeEvent, BlueprintCallable, Category = "Drag and Drop")
	void DragCancelled(const FPointerEvent& PointerEvent);

	/** While it is dragged along. */
	UFUNCTION(BlueprintNativeEvent, BlueprintCallable, Category = "Drag and Drop")
	void Dragged(const FPointerEvent& PointerEvent);
};
