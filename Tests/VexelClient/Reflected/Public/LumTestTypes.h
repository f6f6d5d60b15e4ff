#pragma once

#include "Templates/SubclassOf.h"
#include "Misc/Optional.h"
#include "UObject/FieldPath.h"
#include "UObject/Interface.h"
#include "UObject/LazyObjectPtr.h"
#include "UObject/ObjectInitializer.h"
#include "UObject/ScriptInterface.h"
#include "UObject/SoftObjectPtr.h"
#include "UObject/UObjectGlobals.h"
#include "UObject/UnrealType.h"

#include "LumTestTypes.generated.h"

UENUM()
enum class ELumMood : uint8
{
	Calm,
	Angry UMETA(DisplayName = "Very Angry")
};

UENUM()
enum ELumSide
{
	LS_Left,
	LS_Right
};

USTRUCT()
struct FLumInner
{
	GENERATED_BODY()

	UPROPERTY()
	int32 Depth = 2;

	UPROPERTY()
	FString Label = TEXT("say \"x\"");
};

/** Compares and hashes by its id alone. */
USTRUCT()
struct FLumKey
{
	GENERATED_BODY()

	UPROPERTY(EditAnywhere)
	int32 Id = 0;

	UPROPERTY(EditAnywhere)
	FString Note;

	bool operator==(const FLumKey& Other) const { return Id == Other.Id; }
	friend uint32 GetTypeHash(const FLumKey& Key) { return GetTypeHash(Key.Id); }
};

template <>
struct TStructOpsTypeTraits<FLumKey> : public TStructOpsTypeTraitsBase2<FLumKey>
{
	enum
	{
		WithIdenticalViaEquality = true
	};
};

USTRUCT()
struct FLumOuter
{
	GENERATED_BODY()

	UPROPERTY(EditAnywhere, Category = "Outer")
	FLumInner Inner;

	UPROPERTY()
	TArray<FLumInner> List;

	UPROPERTY()
	float Weight = 0.5f;
};

/** A part that lies in its owner. */
UCLASS(DefaultToInstanced, EditInlineNew)
class ULumPart : public UObject
{
	GENERATED_BODY()

public:
	UPROPERTY(EditAnywhere)
	int32 Strength = 3;

	UPROPERTY(EditAnywhere, Instanced)
	TObjectPtr<ULumPart> Next = nullptr;
};

/** Makes a part of its own when it is made, as an actor of native code makes its components. */
UCLASS()
class ULumWhole : public UObject
{
	GENERATED_BODY()

public:
	ULumWhole(const FObjectInitializer& ObjectInitializer = FObjectInitializer::Get())
		: Super(ObjectInitializer)
	{
		OwnPart = ObjectInitializer.CreateDefaultSubobject<ULumPart>(this, TEXT("OwnPart0"));
	}

	UPROPERTY(VisibleAnywhere)
	TObjectPtr<ULumPart> OwnPart;
};

UINTERFACE()
class ULumTalker : public UInterface
{
	GENERATED_BODY()
};

class ILumTalker
{
	GENERATED_BODY()
};

UCLASS()
class ULumTalkingThing : public UObject, public ILumTalker
{
	GENERATED_BODY()
};

/** Keeps what it is told of edits, and refuses those of one property. */
UCLASS()
class ULumWatch : public UObject
{
	GENERATED_BODY()

public:
	UPROPERTY(EditAnywhere)
	int32 Number = 1;

	UPROPERTY(EditAnywhere)
	int32 Locked = 1;

	UPROPERTY(EditAnywhere)
	FLumOuter Struct;

	UPROPERTY(EditAnywhere)
	TArray<FLumInner> List;

	UPROPERTY(EditAnywhere, EditFixedSize)
	TArray<int32> FixedSize = {1, 2};

	UPROPERTY(EditDefaultsOnly)
	int32 DefaultsOnly = 1;

	UPROPERTY(EditInstanceOnly)
	int32 InstanceOnly = 1;

	UPROPERTY(EditAnywhere, Instanced)
	TObjectPtr<ULumPart> Part = nullptr;

	/** "Pre Number", "Post Struct.Inner.Depth of Struct" and so on. */
	TArray<FString> Told;

	virtual bool CanEditChange(const FProperty* Property) const override
	{
		return Super::CanEditChange(Property) && (!Property || Property->GetName() != TEXT("Locked"));
	}
	using UObject::PreEditChange;
	virtual void PreEditChange(FEditPropertyChain& Chain) override
	{
		Super::PreEditChange(Chain);
		Told.Add(TEXT("Pre ") + Chain.GetActiveMemberNode()->GetValue()->GetName());
	}
	virtual void PostEditChangeChainProperty(FPropertyChangedChainEvent& Event) override
	{
		Super::PostEditChangeChainProperty(Event);
		Told.Add(FString::Printf(TEXT("Post %s of %s"), *Event.GetPropertyName().ToString(), *Event.GetMemberPropertyName().ToString()));
	}
};

DECLARE_DYNAMIC_DELEGATE(FLumDone);
DECLARE_DYNAMIC_MULTICAST_DELEGATE(FLumChanged);

/** Has a property of every kind that the property model shows or leaves out. */
UCLASS()
class ULumThing : public UObject
{
	GENERATED_BODY()

public:
	UPROPERTY(EditAnywhere, Category = "Numbers|Small")
	int8 Int8 = -128;

	UPROPERTY(EditAnywhere)
	int16 Int16 = -32768;

	UPROPERTY(EditAnywhere)
	int32 Int32 = MIN_int32;

	UPROPERTY(EditAnywhere)
	int64 Int64 = MIN_int64;

	UPROPERTY(EditAnywhere)
	uint8 UInt8 = 255;

	UPROPERTY(EditAnywhere)
	uint16 UInt16 = 65535;

	UPROPERTY(EditAnywhere)
	uint32 UInt32 = MAX_uint32;

	UPROPERTY(EditAnywhere)
	uint64 UInt64 = MAX_uint64;

	UPROPERTY(EditAnywhere)
	float Float = -0.25f;

	UPROPERTY(EditAnywhere)
	double Double = 1.5;

	UPROPERTY(EditAnywhere)
	bool bBool = true;

	UPROPERTY(EditAnywhere)
	uint8 bFirstBit : 1 = 0;

	UPROPERTY(EditAnywhere)
	uint8 bSecondBit : 1 = 1;

	UPROPERTY(EditAnywhere)
	TEnumAsByte<ELumSide> Side = LS_Right;

	UPROPERTY(EditAnywhere)
	ELumMood Mood = ELumMood::Angry;

	UPROPERTY(EditAnywhere)
	FName Name = TEXT("A name");

	UPROPERTY(EditAnywhere)
	FString String = TEXT("two\n\"lines\"");

	UPROPERTY(EditAnywhere)
	FString Empty;

	UPROPERTY(EditAnywhere)
	TObjectPtr<UObject> Object = nullptr;

	UPROPERTY(EditAnywhere)
	TSubclassOf<UObject> Class;

	UPROPERTY(EditAnywhere)
	TSoftObjectPtr<UObject> SoftObject;

	UPROPERTY(EditAnywhere)
	TSoftClassPtr<UObject> SoftClass;

	UPROPERTY(EditAnywhere)
	TWeakObjectPtr<UObject> Weak;

	UPROPERTY(EditAnywhere, Instanced)
	TObjectPtr<ULumPart> Part = nullptr;

	UPROPERTY(EditAnywhere)
	FVector Vector = FVector(1, 2, 3);

	UPROPERTY(EditAnywhere)
	FLumOuter Struct;

	UPROPERTY(EditAnywhere)
	TArray<int32> Numbers;

	UPROPERTY(EditAnywhere)
	TSet<FName> Names;

	UPROPERTY(EditAnywhere)
	TMap<FString, FLumOuter> Structs;

	UPROPERTY(EditAnywhere)
	TArray<TObjectPtr<UObject>> Objects;

	UPROPERTY(EditAnywhere)
	FText Text;

	UPROPERTY(EditAnywhere)
	TLazyObjectPtr<UObject> Lazy;

	UPROPERTY(EditAnywhere)
	TScriptInterface<ILumTalker> Talker;

	UPROPERTY(EditAnywhere)
	TSubclassOf<ULumPart> PartClass;

	UPROPERTY(EditAnywhere)
	TObjectPtr<ULumPart> PartReference = nullptr;

	UPROPERTY(EditAnywhere)
	FGuid Guid;

	UPROPERTY(EditAnywhere)
	FTransform Transform;

	UPROPERTY(EditAnywhere)
	FLinearColor Color = FLinearColor(1, 0, 0, 1);

	UPROPERTY(EditAnywhere)
	FSoftObjectPath SoftPath;

	UPROPERTY(EditAnywhere)
	TArray<FLumInner> Inners;

	UPROPERTY(EditAnywhere)
	TArray<FString> Strings;

	UPROPERTY(EditAnywhere)
	TSet<FLumKey> Keys;

	UPROPERTY(EditAnywhere)
	TMap<FName, int32> Counts;

	UPROPERTY(EditAnywhere)
	TMap<FLumKey, FLumInner> ByKey;

	UPROPERTY(EditAnywhere)
	TMap<ELumMood, TSubclassOf<UObject>> ByMood;

	UPROPERTY(EditAnywhere, Instanced)
	TArray<TObjectPtr<ULumPart>> Parts;

	UPROPERTY(EditAnywhere)
	int32 Fixed[3] = {};

	UPROPERTY(EditAnywhere)
	TOptional<int32> Maybe;

	UPROPERTY(EditAnywhere)
	TMap<FName, TOptional<int32>> MaybeByName;

	UPROPERTY(EditAnywhere)
	TMap<FName, TWeakObjectPtr<UObject>> WeakByName;

	UPROPERTY(EditAnywhere)
	TFieldPath<FProperty> Path;

	UPROPERTY(EditAnywhere)
	FLumDone OnDone;

	UPROPERTY(BlueprintAssignable)
	FLumChanged OnChanged;

	UPROPERTY()
	int32 Hidden = 0;

	UPROPERTY(BlueprintReadOnly)
	int32 ReadOnly = 0;

	UPROPERTY(VisibleAnywhere, BlueprintReadWrite)
	int32 ReadWrite = 0;
};
