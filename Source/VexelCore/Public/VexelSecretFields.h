#pragma once

#include "CoreMinimal.h"
#include "VexelHttpPayload.h"

/**
 * The members of a flat JSON object that carries secrets. They are overwritten when this goes, and neither reading nor writing
 * leaves a copy behind, which a JSON object of the engine's cannot promise. Also a request's body.
 */
class VEXELCORE_API FVexelSecretFields
{
public:
	/** Unset for anything but one JSON object in UTF-8. Members that are objects, arrays or null are left out. */
	static TOptional<FVexelSecretFields> FromJson(TConstArrayView<uint8> Json);

	FVexelSecretFields() = default;
	FVexelSecretFields(FVexelSecretFields&&) = default;
	FVexelSecretFields& operator=(FVexelSecretFields&&) = default;

	FVexelSecretFields& AddText(const FString& Key, const FString& Value);
	FVexelSecretFields& AddBoolean(const FString& Key, bool bValue);

	/** The text of a member that is one; false for any other. It is the caller's to overwrite. Keys compare with regard to case. */
	bool TryGetString(const FString& Key, FString& OutValue) const;
	/** Also of a text that is a number. */
	bool TryGetNumber(const FString& Key, double& OutValue) const;

	/** The object as UTF-8, its members in the order in which they were added. It is the caller's to overwrite. */
	TArray<uint8> ToJson() const;

private:
	class FReader;

	enum class EKind : uint8
	{
		Text,
		Number,
		Boolean
	};
	struct FField
	{
		FField(const FString& InKey, EKind InKind, FString&& InValue);
		FField(FField&&) = default;
		~FField();

		FString Key;
		EKind Kind;
		/** A number and a boolean as JSON writes them. */
		FString Value;
	};

	const FField* Find(const FString& Key) const;

	TArray<FField> Fields;
};

template <>
struct VEXELCORE_API VexelInternal::Http::TPayloadHelper<FVexelSecretFields>
{
	static bool SetRequestData(const FVexelSecretFields& Payload, IRequest& Request);
};
