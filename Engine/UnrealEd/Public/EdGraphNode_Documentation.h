#pragma once

#include "CoreMinimal.h"
#include "EdGraph/EdGraphNode.h"

#include "EdGraphNode_Documentation.generated.h"

/** A node that shows a piece of documentation. */
UCLASS()
class UNREALED_API UEdGraphNode_Documentation : public UEdGraphNode
{
	GENERATED_BODY()

public:
	/** Where the documentation is. */
	UPROPERTY()
	FString Link;

	/** Which part of it is shown. */
	UPROPERTY()
	FString Excerpt;

	virtual FText GetNodeTitle(ENodeTitleType::Type TitleType) const override;
	virtual FText GetTooltipText() const override;
	virtual FString GetDocumentationLink() const override { return Link; }
	virtual FString GetDocumentationExcerptName() const override { return Excerpt; }
};
