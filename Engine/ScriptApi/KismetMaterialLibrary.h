// Package: /Script/Engine
#pragma once

#include "Kismet/BlueprintFunctionLibrary.h"
#include "KismetMaterialLibrary.generated.h"

/** How a changing material is made. */
UENUM()
enum class EMIDCreationFlags : uint8
{
	None = 0,
	Transient = 1
};

/** Parameters of materials. */
UCLASS(meta = (ScriptName = "MaterialLibrary"))
class ENGINE_API UKismetMaterialLibrary : public UBlueprintFunctionLibrary
{
	GENERATED_BODY()

public:
	/** Sets a number of a parameter collection. */
	UFUNCTION(BlueprintCallable, Category = "Rendering|Material",
		meta = (WorldContext = "WorldContextObject", Keywords = "SetFloatParameterValue"))
	static void SetScalarParameterValue(
		UObject* WorldContextObject, UMaterialParameterCollection* Collection, FName ParameterName, float ParameterValue);

	/** Sets a colour of a parameter collection. */
	UFUNCTION(BlueprintCallable, Category = "Rendering|Material",
		meta = (WorldContext = "WorldContextObject", Keywords = "SetColorParameterValue"))
	static void SetVectorParameterValue(
		UObject* WorldContextObject, UMaterialParameterCollection* Collection, FName ParameterName, const FLinearColor& ParameterValue);

	/** Number of a parameter collection. */
	UFUNCTION(BlueprintCallable, Category = "Rendering|Material",
		meta = (WorldContext = "WorldContextObject", Keywords = "GetFloatParameterValue"))
	static float GetScalarParameterValue(UObject* WorldContextObject, UMaterialParameterCollection* Collection, FName ParameterName);

	/** Colour of a parameter collection. */
	UFUNCTION(BlueprintCallable, Category = "Rendering|Material",
		meta = (WorldContext = "WorldContextObject", Keywords = "GetColorParameterValue"))
	static FLinearColor GetVectorParameterValue(UObject* WorldContextObject, UMaterialParameterCollection* Collection, FName ParameterName);

	/** Makes a material whose parameters can change. */
	UFUNCTION(BlueprintCallable, Category = "Rendering|Material", meta = (WorldContext = "WorldContextObject"))
	static UMaterialInstanceDynamic* CreateDynamicMaterialInstance(UObject* WorldContextObject, UMaterialInterface* Parent,
		FName OptionalName = NAME_None, EMIDCreationFlags CreationFlags = EMIDCreationFlags::None);
};
