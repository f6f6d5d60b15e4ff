#pragma once

#include "CoreMinimal.h"
#include "Dom/JsonObject.h"
#include "EdGraph/EdGraphPin.h"
#include "VexelId.h"

/** One type that a variable or pin can have. Only FVexelBlueprintPropTypeBuilder makes them; they are shared. */
class FVexelBlueprintPropType : public TSharedFromThis<FVexelBlueprintPropType>
{
	friend class FVexelBlueprintPropTypeBuilder;

	struct FPrivateToken
	{
		explicit FPrivateToken() = default;
	};

public:
	explicit FVexelBlueprintPropType(FPrivateToken) {}
	virtual ~FVexelBlueprintPropType() = default;
	FVexelBlueprintPropType(const FVexelBlueprintPropType&) = delete;
	FVexelBlueprintPropType& operator=(const FVexelBlueprintPropType&) = delete;

	virtual void ToJson(const TSharedRef<FJsonObject>& Object) const;
	/** False, with this type as it was, where the object names no type. */
	virtual bool FromJson(const TSharedRef<FJsonObject>& Object);

	TVexelPropTypeId Id;
	FString Category;
	EPinContainerType Container = EPinContainerType::None;
	FString Keywords;
	FString Description;
};
