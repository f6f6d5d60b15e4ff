#pragma once

#include "CoreMinimal.h"
#include "Templates/Casts.h"
#include "Templates/SubclassOf.h"
#include "UObject/Class.h"
#include "UObject/Object.h"
#include "UObject/ObjectMacros.h"
#include "UObject/ObjectPtr.h"
#include "UObject/WeakObjectPtr.h"

#include "EdGraphPin.generated.h"

class FOutputDevice;
class FReferenceCollector;
class UEdGraphNode;
class UEdGraphPin;
class UEdGraphSchema;
enum class EPinResolveType : uint8;

/** Which side of its node a pin stands on. */
UENUM(BlueprintType)
enum EEdGraphPinDirection : int
{
	EGPD_Input,
	EGPD_Output,
	EGPD_MAX
};

/** What holds the values of a pin. */
UENUM()
enum class EPinContainerType : uint8
{
	None,
	Array,
	Set,
	Map
};

/** A member (a delegate's signature function) by owner, name and id, without the rules of FMemberReference. */
USTRUCT()
struct FSimpleMemberReference
{
	GENERATED_BODY()

	/** Class or package that declares the member. */
	UPROPERTY()
	TObjectPtr<UObject> MemberParent = nullptr;

	UPROPERTY()
	FName MemberName;

	UPROPERTY()
	FGuid MemberGuid;

	void Reset() { *this = FSimpleMemberReference(); }

	UClass* GetMemberParentClass() const { return Cast<UClass>(MemberParent.Get()); }

	bool operator==(const FSimpleMemberReference& Other) const
	{
		return MemberParent == Other.MemberParent && MemberName == Other.MemberName && MemberGuid == Other.MemberGuid;
	}
};

ENGINE_API FArchive& operator<<(FArchive& Ar, FSimpleMemberReference& Reference);

/** Type of the values of a map. */
USTRUCT(BlueprintType)
struct FEdGraphTerminalType
{
	GENERATED_BODY()

	UPROPERTY()
	FName TerminalCategory;

	UPROPERTY()
	FName TerminalSubCategory;

	UPROPERTY()
	TWeakObjectPtr<UObject> TerminalSubCategoryObject;

	UPROPERTY()
	bool bTerminalIsConst = false;

	UPROPERTY()
	bool bTerminalIsWeakPointer = false;

	UPROPERTY()
	bool bTerminalIsUObjectWrapper = false;

	static ENGINE_API FEdGraphTerminalType FromPinType(const struct FEdGraphPinType& PinType);

	bool operator==(const FEdGraphTerminalType& Other) const
	{
		return TerminalCategory == Other.TerminalCategory && TerminalSubCategory == Other.TerminalSubCategory &&
			TerminalSubCategoryObject == Other.TerminalSubCategoryObject && bTerminalIsConst == Other.bTerminalIsConst &&
			bTerminalIsWeakPointer == Other.bTerminalIsWeakPointer && bTerminalIsUObjectWrapper == Other.bTerminalIsUObjectWrapper;
	}
};

ENGINE_API FArchive& operator<<(FArchive& Ar, FEdGraphTerminalType& Type);

/** Type of a pin and of a Blueprint variable. The categories' meaning is the schema's; UEdGraphSchema_K2 names them. */
USTRUCT(BlueprintType)
struct FEdGraphPinType
{
	GENERATED_BODY()

	UPROPERTY()
	FName PinCategory;

	UPROPERTY()
	FName PinSubCategory;

	/** Class, struct, enum or delegate signature that the category asks for. */
	UPROPERTY()
	TWeakObjectPtr<UObject> PinSubCategoryObject;

	/** Signature of a delegate pin. */
	UPROPERTY()
	FSimpleMemberReference PinSubCategoryMemberReference;

	/** Type of the values when ContainerType is Map; the rest of this struct is then the keys' type. */
	UPROPERTY()
	FEdGraphTerminalType PinValueType;

	UPROPERTY()
	EPinContainerType ContainerType = EPinContainerType::None;

	UPROPERTY()
	uint8 bIsReference : 1;

	UPROPERTY()
	uint8 bIsConst : 1;

	UPROPERTY()
	uint8 bIsWeakPointer : 1;

	/** A TSubclassOf or TObjectPtr, not a raw pointer. */
	UPROPERTY()
	uint8 bIsUObjectWrapper : 1;

	/** A "real" pin whose value is stored as a float although it is edited as a double. */
	UPROPERTY()
	uint8 bSerializeAsSinglePrecisionFloat : 1;

	FEdGraphPinType()
		: bIsReference(false)
		, bIsConst(false)
		, bIsWeakPointer(false)
		, bIsUObjectWrapper(false)
		, bSerializeAsSinglePrecisionFloat(false)
	{
	}

	FEdGraphPinType(FName InPinCategory, FName InPinSubCategory, UObject* InPinSubCategoryObject, EPinContainerType InContainerType,
		bool bInIsReference, const FEdGraphTerminalType& InValueTerminalType)
		: PinCategory(InPinCategory)
		, PinSubCategory(InPinSubCategory)
		, PinSubCategoryObject(InPinSubCategoryObject)
		, PinValueType(InValueTerminalType)
		, ContainerType(InContainerType)
		, bIsReference(bInIsReference)
		, bIsConst(false)
		, bIsWeakPointer(false)
		, bIsUObjectWrapper(false)
		, bSerializeAsSinglePrecisionFloat(false)
	{
	}

	bool IsContainer() const { return ContainerType != EPinContainerType::None; }
	bool IsArray() const { return ContainerType == EPinContainerType::Array; }
	bool IsSet() const { return ContainerType == EPinContainerType::Set; }
	bool IsMap() const { return ContainerType == EPinContainerType::Map; }

	void ResetToDefaults() { *this = FEdGraphPinType(); }

	ENGINE_API bool operator==(const FEdGraphPinType& Other) const;
	bool operator!=(const FEdGraphPinType& Other) const { return !(*this == Other); }

	/** The engine's binary form, in pins and in tagged properties alike. */
	ENGINE_API bool Serialize(FArchive& Ar);

	/** Builds a non-container type for the value side of a map. */
	static ENGINE_API FEdGraphPinType GetPinTypeForTerminalType(const FEdGraphTerminalType& TerminalType);
	static ENGINE_API FEdGraphPinType GetTerminalTypeForContainer(const FEdGraphPinType& ContainerType);
};

template <>
struct TStructOpsTypeTraits<FEdGraphPinType> : public TStructOpsTypeTraitsBase2<FEdGraphPinType>
{
	enum
	{
		WithSerializer = true,
	};
};

/** A pin by node and id; survives the pin's reconstruction and the undo of its removal. */
USTRUCT(BlueprintType)
struct FEdGraphPinReference
{
	GENERATED_BODY()

	FEdGraphPinReference() = default;
	FEdGraphPinReference(UEdGraphPin* InPin) { SetPin(InPin); }
	FEdGraphPinReference(const UEdGraphPin* InPin) { SetPin(InPin); }

	ENGINE_API void SetPin(const UEdGraphPin* NewPin);
	/** Refers to a pin that may not be there yet. */
	ENGINE_API void SetPinById(UEdGraphNode* Node, const FGuid& InPinId);
	/** Null when the node is gone or has no pin of that id. */
	ENGINE_API UEdGraphPin* Get() const;

	bool operator==(const FEdGraphPinReference& Other) const { return OwningNode == Other.OwningNode && PinId == Other.PinId; }

	friend uint32 GetTypeHash(const FEdGraphPinReference& Reference)
	{
		return HashCombine(GetTypeHash(Reference.OwningNode), GetTypeHash(Reference.PinId));
	}

private:
	UPROPERTY()
	TWeakObjectPtr<UEdGraphNode> OwningNode;

	UPROPERTY()
	FGuid PinId;
};

/**
 * A pin of a graph node. Not a UObject: its node owns it, reports its references and serializes it. Pins are used on the
 * game thread alone.
 */
class UEdGraphPin
{
	friend class UEdGraphNode;

	/** Node that holds this pin in its Pins; null once the pin is trashed. */
	UEdGraphNode* OwningNode = nullptr;

public:
	/** Kept through reconstruction, serialization and undo; links are stored by it. */
	FGuid PinId;
	FName PinName;
	FText PinFriendlyName;
	/** Position in the declaration that made the pin, or INDEX_NONE. */
	int32 SourceIndex = INDEX_NONE;
	FString PinToolTip;
	TEnumAsByte<enum EEdGraphPinDirection> Direction;
	FEdGraphPinType PinType;

	FString DefaultValue;
	FString AutogeneratedDefaultValue;
	/** Default of pins that refer to an object or class. */
	TObjectPtr<UObject> DefaultObject = nullptr;
	/** Default of text pins. */
	FText DefaultTextValue;

	TArray<UEdGraphPin*> LinkedTo;
	/** Members of this pin while it is split. They stand in the node's Pins too, after this one. */
	TArray<UEdGraphPin*> SubPins;
	/** The split pin that this one is a member of. */
	UEdGraphPin* ParentPin = nullptr;
	/** Pin on the other side of the node that passes the same reference on. */
	UEdGraphPin* ReferencePassThroughConnection = nullptr;

	uint8 bHidden : 1;
	uint8 bNotConnectable : 1;
	uint8 bDefaultValueIsReadOnly : 1;
	uint8 bDefaultValueIsIgnored : 1;
	uint8 bIsDiffing : 1;
	uint8 bAdvancedView : 1;
	uint8 bDisplayAsMutableRef : 1;
	uint8 bAllowFriendlyName : 1;
	/** The node's definition has no such pin any more; it is kept because it carries a link or a value. */
	uint8 bOrphanedPin : 1;

private:
	uint8 bWasTrashed : 1;

	/** A link to a pin of a node whose class this host does not know; kept so that saving loses nothing. */
	struct FForeignLink
	{
		TObjectPtr<UObject> Node;
		FGuid PinId;
		int32 Index = 0;
	};
	TArray<FForeignLink> ForeignLinks;

public:
	/** Id that a node's own data gives a pin (a struct's member), for matching after a rename. */
	FGuid PersistentGuid;

	/** Makes a pin with a new id. The caller puts it into the node's Pins. */
	static ENGINE_API UEdGraphPin* CreatePin(UEdGraphNode* InOwningNode);

	/** Links both ways, asking no schema. Nothing happens when the link exists. Both nodes are modified and told. */
	ENGINE_API void MakeLinkTo(UEdGraphPin* ToPin);
	/** Removes the link from both ends, and tells both nodes. */
	ENGINE_API void BreakLinkTo(UEdGraphPin* ToPin);
	ENGINE_API void BreakAllPinLinks(bool bNotifyNodes = false);

	/** Takes the id, links, defaults, visibility and sub-pins of a pin that this one replaces; the old pin keeps nothing. */
	ENGINE_API void MovePersistentDataFromOldPin(UEdGraphPin& SourcePin);
	/** As MovePersistentDataFromOldPin, but the old pin keeps its links. */
	ENGINE_API void CopyPersistentDataFromOldPin(const UEdGraphPin& SourcePin);
	ENGINE_API void AssignByRefPassThroughConnection(UEdGraphPin* InTargetPin);

	UEdGraphNode* GetOwningNode() const
	{
		check(OwningNode != nullptr);
		return OwningNode;
	}
	UEdGraphNode* GetOwningNodeUnchecked() const { return OwningNode; }

	ENGINE_API FText GetDisplayName() const;
	ENGINE_API const UEdGraphSchema* GetSchema() const;
	ENGINE_API FString GetLinkInfoString(const FString& InFunctionName, const FString& InInfoData, const UEdGraphPin* InToPin) const;
	FString GetName() const { return PinName.ToString(); }
	FName GetFName() const { return PinName; }

	/** Sets bHidden, unless the node makes the pin visible because of its links. Answers whether it changed. */
	ENGINE_API bool SafeSetHidden(bool bIsHidden);
	bool HasAnyConnections() const { return LinkedTo.Num() > 0; }
	ENGINE_API void ResetDefaultValue();

	/** The default as one string: a text's string, an object's path, else DefaultValue. */
	ENGINE_API FString GetDefaultAsString() const;
	ENGINE_API FText GetDefaultAsText() const;
	ENGINE_API bool IsDefaultAsStringEmpty() const;
	ENGINE_API void GetDefaultValueAndType(FString& OutValue, FString& OutType) const;
	/** True when nobody has set a default other than the one that the node gives. */
	ENGINE_API bool DoesDefaultValueMatchAutogenerated() const;

	/** Breaks the links and gives the pin up; its memory lives until the next garbage collection. */
	ENGINE_API void MarkAsGarbage();
	bool WasTrashed() const { return bWasTrashed; }
	bool IsPendingKill() const { return bWasTrashed; }
	/** Records the owning node for undo. */
	ENGINE_API bool Modify(bool bAlwaysMarkDirty = true);

	/** Appends `(PinId=...,PinName="...",...)`. */
	ENGINE_API bool ExportTextItem(FString& ValueStr, int32 PortFlags) const;
	/**
	 * Reads what ExportTextItem writes, and unknown keys; leaves Buffer behind the closing parenthesis. Links to pins not read yet wait
	 * for ResolveAllPinReferences.
	 */
	ENGINE_API bool ImportTextItem(const TCHAR*& Buffer, int32 PortFlags, UObject* Parent, FOutputDevice* ErrorText);
	/** Forgets the links that still wait for pins that have not appeared. */
	static ENGINE_API void ResolveAllPinReferences();
	/** After undo: drops links whose other end does not link back, and links the ends that only this side knows of. */
	static ENGINE_API void SanitizePinsPostUndoRedo(UEdGraphNode* Node, const TArray<UEdGraphPin*>& Pins);
	/**
	 * For the pins of one node as read from outside: drops sub-pins, parents and pass-throughs that only one side knows of, and circles.
	 */
	static ENGINE_API void SanitizeFamilies(const TArray<UEdGraphPin*>& Pins);

	/** Serializes the pins in Ar's version, reusing those of ArrayRef that have the same ids so that links to them hold. */
	static ENGINE_API void SerializeAsOwningNode(FArchive& Ar, TArray<UEdGraphPin*>& ArrayRef);
	ENGINE_API bool Serialize(FArchive& Ar);
	ENGINE_API void AddStructReferencedObjects(FReferenceCollector& Collector) const;

	static ENGINE_API bool AreOrphanPinsEnabled();
	static ENGINE_API FString ExportText_PinReference(const UEdGraphPin* Pin);
	static ENGINE_API FString ExportText_PinArray(const TArray<UEdGraphPin*>& PinArray);

	/** Frees trashed pins. Runs after each garbage collection. */
	static ENGINE_API void Purge();

private:
	UEdGraphPin(UEdGraphNode* InOwningNode, const FGuid& PinGuid);
	~UEdGraphPin() = default;

	void TransferPersistentData(const UEdGraphPin& SourcePin);
	void SerializeDefaults(FArchive& Ar);
	void SerializeLinks(FArchive& Ar);
	void SerializeEditorData(FArchive& Ar);

	static void SerializePinArray(FArchive& Ar, TArray<UEdGraphPin*>& ArrayRef, UEdGraphPin* RequestingPin, EPinResolveType ResolveType);
	/** Reads one reference; null when it is null, waits or is foreign. */
	static UEdGraphPin* LoadPinReference(FArchive& Ar, UEdGraphPin* RequestingPin, EPinResolveType ResolveType, int32 Index);
	static void SerializePin(FArchive& Ar, UEdGraphPin*& PinRef, UEdGraphPin* RequestingPin, EPinResolveType ResolveType);
	static void LoadOwnedPins(FArchive& Ar, TArray<UEdGraphPin*>& ArrayRef);
	static void SaveOwnedPins(FArchive& Ar, TArray<UEdGraphPin*>& ArrayRef);
	static void ResolveReferencesToPin(UEdGraphPin* Pin);

	friend class FUnresolvedPins;
	friend class FPinTextReader;
};

/** A pin as packages older than EdGraphPinOptimized and node texts of that time have it: an object of its own. */
UCLASS(MinimalAPI)
class UEdGraphPin_Deprecated : public UObject
{
	GENERATED_BODY()

public:
	UEdGraphPin_Deprecated(const FObjectInitializer& ObjectInitializer = FObjectInitializer::Get());

	UPROPERTY()
	FString PinName;

	UPROPERTY()
	FText PinFriendlyName;

	UPROPERTY()
	FString PinToolTip;

	UPROPERTY()
	TEnumAsByte<enum EEdGraphPinDirection> Direction = EGPD_Input;

	UPROPERTY()
	FEdGraphPinType PinType;

	UPROPERTY()
	FString DefaultValue;

	UPROPERTY()
	FString AutogeneratedDefaultValue;

	UPROPERTY()
	TObjectPtr<UObject> DefaultObject = nullptr;

	UPROPERTY()
	FText DefaultTextValue;

	UPROPERTY()
	TArray<TObjectPtr<UEdGraphPin_Deprecated>> LinkedTo;

	UPROPERTY()
	TArray<TObjectPtr<UEdGraphPin_Deprecated>> SubPins;

	UPROPERTY()
	TObjectPtr<UEdGraphPin_Deprecated> ParentPin = nullptr;

	UPROPERTY()
	uint32 bHidden : 1;

	UPROPERTY()
	uint32 bNotConnectable : 1;

	UPROPERTY()
	uint32 bDefaultValueIsReadOnly : 1;

	UPROPERTY()
	uint32 bDefaultValueIsIgnored : 1;

	UPROPERTY()
	uint32 bAdvancedView : 1;

	UPROPERTY()
	FGuid PersistentGuid;
};
