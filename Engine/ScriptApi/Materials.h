// Package: /Script/Engine
#pragma once

#include "Components.h"
#include "Materials.generated.h"

/** What a material is for. */
UENUM(BlueprintType)
enum EMaterialDomain : int
{
	MD_Surface UMETA(DisplayName = "Surface"),
	MD_DeferredDecal UMETA(DisplayName = "Deferred Decal"),
	MD_LightFunction UMETA(DisplayName = "Light Function"),
	MD_Volume UMETA(DisplayName = "Volume"),
	MD_PostProcess UMETA(DisplayName = "Post Process"),
	MD_UI UMETA(DisplayName = "User Interface"),
	MD_RuntimeVirtualTexture UMETA(Hidden)
};

/** Which part of a material has a parameter. */
UENUM(BlueprintType)
enum EMaterialParameterAssociation : int
{
	LayerParameter,
	BlendParameter,
	GlobalParameter
};

/** A parameter of a material. */
USTRUCT(BlueprintType)
struct FMaterialParameterInfo
{
	GENERATED_BODY()

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "MaterialParameterInfo")
	FName Name;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "MaterialParameterInfo")
	TEnumAsByte<EMaterialParameterAssociation> Association;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "MaterialParameterInfo")
	int32 Index = -1;
};

/** A mesh that does not bend. */
UCLASS(BlueprintType)
class ENGINE_API UStaticMesh : public UObject
{
	GENERATED_BODY()

public:
	/** The num LO ds. */
	UFUNCTION(BlueprintCallable, Category = "StaticMesh")
	int32 GetNumLODs() const;

	/** The num sections. */
	UFUNCTION(BlueprintCallable, Category = "StaticMesh")
	int32 GetNumSections(int32 InLOD) const;

	/** The bounds. */
	UFUNCTION(BlueprintCallable, Category = "StaticMesh")
	FBoxSphereBounds GetBounds() const;

	/** The bounding box. */
	UFUNCTION(BlueprintCallable, Category = "StaticMesh")
	FBox GetBoundingBox() const;

	/** The material. */
	UFUNCTION(BlueprintCallable, Category = "StaticMesh")
	UMaterialInterface* GetMaterial(int32 MaterialIndex) const;

	/** The material index. */
	UFUNCTION(BlueprintCallable, Category = "StaticMesh")
	int32 GetMaterialIndex(FName MaterialSlotName) const;

	/** The num triangles. */
	UFUNCTION(BlueprintCallable, Category = "StaticMesh")
	int32 GetNumTriangles(int32 LODIndex) const;

	UFUNCTION(BlueprintCallable, Category = "StaticMesh")
	UStaticMeshSocket* FindSocket(FName InSocketName) const;
};

/** How a surface looks. */
UCLASS(abstract, BlueprintType)
class ENGINE_API UMaterialInterface : public UObject
{
	GENERATED_BODY()

public:
	/** Material that this one goes back to. */
	UFUNCTION(BlueprintCallable, Category = "Rendering|Material")
	UMaterial* GetBaseMaterial();

	/** The physical material. */
	UFUNCTION(BlueprintPure, Category = "Physics|Material")
	UPhysicalMaterial* GetPhysicalMaterial() const;

	/** The blend mode. */
	UFUNCTION(BlueprintPure, Category = "Rendering|Material")
	EBlendMode GetBlendMode() const;

	/** Sets the force mip levels to be resident. */
	UFUNCTION(BlueprintCallable, Category = "Rendering|Material")
	void SetForceMipLevelsToBeResident(bool OverrideForceMiplevelsToBeResident, bool bForceMiplevelsToBeResidentValue, float ForceDuration,
		int32 CinematicTextureGroups = 0, bool bFastResponse = false);
};

/** A material whose values change in the game. */
UCLASS(hidecategories = Object, collapsecategories, BlueprintType)
class ENGINE_API UMaterialInstanceDynamic : public UMaterialInstance
{
	GENERATED_BODY()

public:
	/** Sets a number. */
	UFUNCTION(BlueprintCallable, Category = "Rendering|Material", meta = (Keywords = "SetFloatParameterValue"))
	void SetScalarParameterValue(FName ParameterName, float Value);

	/** Sets a vector or a colour. */
	UFUNCTION(BlueprintCallable, Category = "Rendering|Material", meta = (Keywords = "SetColorParameterValue"))
	void SetVectorParameterValue(FName ParameterName, FLinearColor Value);

	/** Sets a picture. */
	UFUNCTION(BlueprintCallable, Category = "Rendering|Material")
	void SetTextureParameterValue(FName ParameterName, UTexture* Value);

	/** Sets the vector parameter value by info. */
	UFUNCTION(BlueprintCallable, Category = "Rendering|Material")
	void SetVectorParameterValueByInfo(const FMaterialParameterInfo& ParameterInfo, FLinearColor Value);

	/** Sets the scalar parameter value by info. */
	UFUNCTION(BlueprintCallable, Category = "Rendering|Material")
	void SetScalarParameterValueByInfo(const FMaterialParameterInfo& ParameterInfo, float Value);

	/** Sets the texture parameter value by info. */
	UFUNCTION(BlueprintCallable, Category = "Rendering|Material")
	void SetTextureParameterValueByInfo(const FMaterialParameterInfo& ParameterInfo, UTexture* Value);

	/** Sets the double vector parameter value. */
	UFUNCTION(BlueprintCallable, Category = "Rendering|Material")
	void SetDoubleVectorParameterValue(FName ParameterName, FVector4 Value);

	/** The scalar parameter value. */
	UFUNCTION(BlueprintCallable, Category = "Rendering|Material",
		meta = (DisplayName = "Get Scalar Parameter Value", ScriptName = "GetScalarParameterValue", Keywords = "GetFloatParameterValue"))
	float K2_GetScalarParameterValue(FName ParameterName);

	/** The texture parameter value. */
	UFUNCTION(BlueprintCallable, Category = "Rendering|Material",
		meta = (DisplayName = "Get Texture Parameter Value", ScriptName = "GetTextureParameterValue",
			Keywords = "GetTextureParameterValue"))
	UTexture* K2_GetTextureParameterValue(FName ParameterName);

	/** The vector parameter value. */
	UFUNCTION(BlueprintCallable, Category = "Rendering|Material",
		meta = (DisplayName = "Get Vector Parameter Value", ScriptName = "GetVectorParameterValue", Keywords = "GetColorParameterValue"))
	FLinearColor K2_GetVectorParameterValue(FName ParameterName);

	/** The scalar parameter value by info. */
	UFUNCTION(BlueprintCallable, Category = "Rendering|Material",
		meta = (DisplayName = "Get Scalar Parameter Value By Info", ScriptName = "GetScalarParameterValueByInfo"))
	float K2_GetScalarParameterValueByInfo(const FMaterialParameterInfo& ParameterInfo);

	/** The vector parameter value by info. */
	UFUNCTION(BlueprintCallable, Category = "Rendering|Material",
		meta = (DisplayName = "Get Vector Parameter Value By Info", ScriptName = "GetVectorParameterValueByInfo"))
	FLinearColor K2_GetVectorParameterValueByInfo(const FMaterialParameterInfo& ParameterInfo);

	/** Goes from one material's values to another's. */
	UFUNCTION(BlueprintCallable, Category = "Rendering|Material",
		meta = (DisplayName = "Interpolate Material Instance Params", ScriptName = "InterpolateMaterialInstanceParams"))
	void K2_InterpolateMaterialInstanceParams(UMaterialInstance* SourceA, UMaterialInstance* SourceB, float Alpha);

	/** Takes the values of another material. */
	UFUNCTION(BlueprintCallable, Category = "Rendering|Material",
		meta = (ScriptName = "CopyMaterialInstanceParameters", DisplayName = "Copy Material Instance Parameters"))
	void K2_CopyMaterialInstanceParameters(UMaterialInterface* Source, bool bQuickParametersOnly = false);

	UFUNCTION(BlueprintCallable, Category = "Rendering|Material")
	void CopyParameterOverrides(UMaterialInstance* MaterialInstance);
};

/** A part of materials. */
UCLASS(abstract, BlueprintType)
class ENGINE_API UMaterialFunctionInterface : public UObject
{
	GENERATED_BODY()
};

/** A part of materials. */
UCLASS(hidecategories = object, MinimalAPI)
class ENGINE_API UMaterialFunction : public UMaterialFunctionInterface
{
	GENERATED_BODY()
};

/** Parameters that materials share. */
UCLASS(hidecategories = object, MinimalAPI, BlueprintType)
class ENGINE_API UMaterialParameterCollection : public UObject
{
	GENERATED_BODY()

public:
	/** The scalar parameter names. */
	UFUNCTION(BlueprintCallable, Category = "Material")
	TArray<FName> GetScalarParameterNames() const;

	/** The vector parameter names. */
	UFUNCTION(BlueprintCallable, Category = "Material")
	TArray<FName> GetVectorParameterNames() const;

	/** The scalar parameter default value. */
	UFUNCTION(BlueprintCallable, Category = "Material")
	float GetScalarParameterDefaultValue(FName ParameterName, bool& bParameterFound) const;

	/** The vector parameter default value. */
	UFUNCTION(BlueprintCallable, Category = "Material")
	FLinearColor GetVectorParameterDefaultValue(FName ParameterName, bool& bParameterFound) const;
};

/** A material with values of its own. */
UCLASS(hidecategories = Object, collapsecategories, BlueprintType)
class ENGINE_API UMaterialInstanceConstant : public UMaterialInstance
{
	GENERATED_BODY()
};

/** A place on a mesh. */
UCLASS(hidecategories = Object, BlueprintType)
class ENGINE_API UStaticMeshSocket : public UObject
{
	GENERATED_BODY()

public:
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "StaticMeshSocket")
	FVector RelativeLocation;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "StaticMeshSocket")
	FRotator RelativeRotation;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "StaticMeshSocket")
	FVector RelativeScale;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "StaticMeshSocket")
	FString Tag;
};
