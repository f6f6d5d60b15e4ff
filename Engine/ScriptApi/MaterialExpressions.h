// Package: /Script/Engine
#pragma once

#include "CoreMinimal.h"
#include "MaterialExpressions.generated.h"

/** An input of a material's node. */
USTRUCT(BlueprintType)
struct FExpressionInput
{
	GENERATED_BODY()

	UPROPERTY()
	TObjectPtr<UMaterialExpression> Expression;

	UPROPERTY()
	int32 OutputIndex = 0;

	UPROPERTY()
	FName InputName;

	UPROPERTY()
	int32 Mask = 0;

	UPROPERTY()
	int32 MaskR = 0;

	UPROPERTY()
	int32 MaskG = 0;

	UPROPERTY()
	int32 MaskB = 0;

	UPROPERTY()
	int32 MaskA = 0;
};

/** A node of a material. */
UCLASS(Abstract, BlueprintType, hidecategories = Object)
class ENGINE_API UMaterialExpression : public UObject
{
	GENERATED_BODY()

public:
	UPROPERTY(Category = "MaterialExpression")
	int32 MaterialExpressionEditorX = 0;

	UPROPERTY(Category = "MaterialExpression")
	int32 MaterialExpressionEditorY = 0;

	UPROPERTY(Category = "MaterialExpression")
	FGuid MaterialExpressionGuid;

	UPROPERTY(EditAnywhere, Category = "MaterialExpression", meta = (MultiLine = "true"))
	FString Desc;

	UPROPERTY(Category = "MaterialExpression")
	TObjectPtr<UMaterial> Material;

	UPROPERTY(Category = "MaterialExpression")
	TObjectPtr<UMaterialFunction> Function;
};

/** Sum of two values. */
UCLASS(MinimalAPI, collapsecategories, hidecategories = Object)
class ENGINE_API UMaterialExpressionAdd : public UMaterialExpression
{
	GENERATED_BODY()

public:
	UPROPERTY()
	FExpressionInput A;

	UPROPERTY()
	FExpressionInput B;

	UPROPERTY(EditAnywhere, Category = "MaterialExpressionAdd")
	float ConstA = 0.f;

	UPROPERTY(EditAnywhere, Category = "MaterialExpressionAdd")
	float ConstB = 1.f;
};

/** Difference of two values. */
UCLASS(MinimalAPI, collapsecategories, hidecategories = Object)
class ENGINE_API UMaterialExpressionSubtract : public UMaterialExpression
{
	GENERATED_BODY()

public:
	UPROPERTY()
	FExpressionInput A;

	UPROPERTY()
	FExpressionInput B;

	UPROPERTY(EditAnywhere, Category = "MaterialExpressionSubtract")
	float ConstA = 1.f;

	UPROPERTY(EditAnywhere, Category = "MaterialExpressionSubtract")
	float ConstB = 1.f;
};

/** Product of two values. */
UCLASS(MinimalAPI, collapsecategories, hidecategories = Object)
class ENGINE_API UMaterialExpressionMultiply : public UMaterialExpression
{
	GENERATED_BODY()

public:
	UPROPERTY()
	FExpressionInput A;

	UPROPERTY()
	FExpressionInput B;

	UPROPERTY(EditAnywhere, Category = "MaterialExpressionMultiply")
	float ConstA = 0.f;

	UPROPERTY(EditAnywhere, Category = "MaterialExpressionMultiply")
	float ConstB = 1.f;
};

/** A number. */
UCLASS(MinimalAPI, collapsecategories, hidecategories = Object)
class ENGINE_API UMaterialExpressionConstant : public UMaterialExpression
{
	GENERATED_BODY()

public:
	UPROPERTY(EditAnywhere, Category = "MaterialExpressionConstant")
	float R = 0.f;
};

/** Two numbers. */
UCLASS(MinimalAPI, collapsecategories, hidecategories = Object)
class ENGINE_API UMaterialExpressionConstant2Vector : public UMaterialExpression
{
	GENERATED_BODY()

public:
	UPROPERTY(EditAnywhere, Category = "MaterialExpressionConstant2Vector")
	float R = 0.f;

	UPROPERTY(EditAnywhere, Category = "MaterialExpressionConstant2Vector")
	float G = 0.f;
};

/** Three numbers. */
UCLASS(MinimalAPI, collapsecategories, hidecategories = Object)
class ENGINE_API UMaterialExpressionConstant3Vector : public UMaterialExpression
{
	GENERATED_BODY()

public:
	UPROPERTY(EditAnywhere, Category = "MaterialExpressionConstant3Vector")
	FLinearColor Constant;
};

/** Four numbers. */
UCLASS(MinimalAPI, collapsecategories, hidecategories = Object)
class ENGINE_API UMaterialExpressionConstant4Vector : public UMaterialExpression
{
	GENERATED_BODY()

public:
	UPROPERTY(EditAnywhere, Category = "MaterialExpressionConstant4Vector")
	FLinearColor Constant;
};

/** Some parts of a value. */
UCLASS(MinimalAPI, collapsecategories, hidecategories = Object)
class ENGINE_API UMaterialExpressionComponentMask : public UMaterialExpression
{
	GENERATED_BODY()

public:
	UPROPERTY()
	FExpressionInput Input;

	UPROPERTY(EditAnywhere, Category = "MaterialExpressionComponentMask")
	uint32 R : 1;

	UPROPERTY(EditAnywhere, Category = "MaterialExpressionComponentMask")
	uint32 G : 1;

	UPROPERTY(EditAnywhere, Category = "MaterialExpressionComponentMask")
	uint32 B : 1;

	UPROPERTY(EditAnywhere, Category = "MaterialExpressionComponentMask")
	uint32 A : 1;
};

/** Logarithm to the base of 2. */
UCLASS(MinimalAPI, collapsecategories, hidecategories = Object)
class ENGINE_API UMaterialExpressionLogarithm2 : public UMaterialExpression
{
	GENERATED_BODY()

public:
	UPROPERTY()
	FExpressionInput X;
};

/** Logarithm to the base of 10. */
UCLASS(MinimalAPI, collapsecategories, hidecategories = Object)
class ENGINE_API UMaterialExpressionLogarithm10 : public UMaterialExpression
{
	GENERATED_BODY()

public:
	UPROPERTY()
	FExpressionInput X;
};

/** A value held between 0 and 1. */
UCLASS(MinimalAPI, collapsecategories, hidecategories = Object)
class ENGINE_API UMaterialExpressionSaturate : public UMaterialExpression
{
	GENERATED_BODY()

public:
	UPROPERTY()
	FExpressionInput Input;
};

/** Square root. */
UCLASS(MinimalAPI, collapsecategories, hidecategories = Object)
class ENGINE_API UMaterialExpressionSquareRoot : public UMaterialExpression
{
	GENERATED_BODY()

public:
	UPROPERTY()
	FExpressionInput Input;
};

/** A picture of the scene. */
UCLASS(MinimalAPI, collapsecategories, hidecategories = Object)
class ENGINE_API UMaterialExpressionSceneTexture : public UMaterialExpression
{
	GENERATED_BODY()

public:
	UPROPERTY()
	FExpressionInput Coordinates;
};

/** A value by what the machine can do. */
UCLASS(MinimalAPI, collapsecategories, hidecategories = Object)
class ENGINE_API UMaterialExpressionFeatureLevelSwitch : public UMaterialExpression
{
	GENERATED_BODY()

public:
	UPROPERTY()
	FExpressionInput Default;
};

/** An input of a material function. */
UCLASS(MinimalAPI, collapsecategories, hidecategories = Object)
class ENGINE_API UMaterialExpressionFunctionInput : public UMaterialExpression
{
	GENERATED_BODY()

public:
	UPROPERTY()
	FExpressionInput Preview;

	UPROPERTY(EditAnywhere, Category = "MaterialExpressionFunctionInput")
	FName InputName;

	UPROPERTY(EditAnywhere, Category = "MaterialExpressionFunctionInput")
	FString Description;

	UPROPERTY(EditAnywhere, Category = "MaterialExpressionFunctionInput")
	int32 SortPriority = 0;
};

/** A call of a material function. */
UCLASS(MinimalAPI, collapsecategories, hidecategories = Object)
class ENGINE_API UMaterialExpressionMaterialFunctionCall : public UMaterialExpression
{
	GENERATED_BODY()

public:
	UPROPERTY(EditAnywhere, Category = "MaterialExpressionMaterialFunctionCall")
	TObjectPtr<UMaterialFunctionInterface> MaterialFunction;
};
