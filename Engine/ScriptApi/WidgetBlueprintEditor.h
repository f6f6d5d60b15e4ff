// Package: /Script/UMGEditor
#pragma once

#include "CoreMinimal.h"
#include "WidgetBlueprintEditor.generated.h"

/** A Blueprint with widgets. */
UCLASS()
class UMGEDITOR_API UBaseWidgetBlueprint : public UBlueprint
{
	GENERATED_BODY()

public:
	UPROPERTY()
	TObjectPtr<UWidgetTree> WidgetTree;
};

/** A Blueprint of a widget. */
UCLASS(BlueprintType)
class UMGEDITOR_API UWidgetBlueprint : public UBaseWidgetBlueprint
{
	GENERATED_BODY()
};

/** Rules of a widget Blueprint's graphs. */
UCLASS(MinimalAPI)
class UMGEDITOR_API UWidgetGraphSchema : public UEdGraphSchema_K2
{
	GENERATED_BODY()
};
