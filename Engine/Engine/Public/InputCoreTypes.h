// Package: /Script/InputCore
#pragma once

#include "CoreMinimal.h"
#include "UObject/Class.h"
#include "UObject/ObjectMacros.h"

#include "InputCoreTypes.generated.h"

class FOutputDevice;
class UObject;

/** A key, button or axis of an input device, by its name. */
USTRUCT(BlueprintType)
struct ENGINE_API FKey
{
	GENERATED_BODY()

	FKey() = default;
	FKey(const FName InName)
		: KeyName(InName)
	{
	}
	FKey(const TCHAR* InName)
		: KeyName(InName)
	{
	}

	bool IsValid() const { return !KeyName.IsNone(); }
	FName GetFName() const { return KeyName; }
	FString ToString() const { return KeyName.ToString(); }
	/** One number that moves: a trigger, one direction of a stick. */
	bool IsAxis1D() const;
	/** Two or three numbers that move together. */
	bool IsVector() const;
	bool IsGamepadKey() const;
	/** As a user reads it: "Left Mouse Button", "1". */
	FText GetDisplayName(bool bLongDisplayName = true) const;

	/** A key's text is its bare name. */
	bool ExportTextItem(FString& ValueStr, const FKey& DefaultValue, UObject* Parent, int32 PortFlags, UObject* ExportRootScope) const;
	bool ImportTextItem(const TCHAR*& Buffer, int32 PortFlags, UObject* Parent, FOutputDevice* ErrorText);

	friend bool operator==(const FKey& A, const FKey& B) { return A.KeyName == B.KeyName; }
	friend uint32 GetTypeHash(const FKey& Key) { return GetTypeHash(Key.KeyName); }

private:
	UPROPERTY(EditAnywhere, Category = "Key")
	FName KeyName;
};

template <>
struct TStructOpsTypeTraits<FKey> : public TStructOpsTypeTraitsBase2<FKey>
{
	enum
	{
		WithExportTextItem = true,
		WithImportTextItem = true,
		WithIdenticalViaEquality = true,
	};
};

/** The keys, buttons and axes that the engine knows without a plug-in. */
struct ENGINE_API EKeys
{
	static void GetAllKeys(TArray<FKey>& OutKeys);
};
