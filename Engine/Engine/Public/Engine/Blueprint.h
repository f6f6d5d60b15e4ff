#pragma once

#include "CoreMinimal.h"
#include "EdGraph/EdGraphPin.h"
#include "Engine/BlueprintCore.h"
#include "Engine/EngineTypes.h"
#include "Templates/SubclassOf.h"
#include "UObject/Object.h"
#include "UObject/ObjectMacros.h"
#include "UObject/SoftObjectPath.h"

#include "Blueprint.generated.h"

class UActorComponent;
class UBlueprint;
class UBlueprintGeneratedClass;
class UEdGraph;
class UEdGraphNode;
class UInheritableComponentHandler;
class USimpleConstructionScript;
class UTimelineTemplate;

/** What the last compile said of a Blueprint. */
UENUM()
enum EBlueprintStatus : int
{
	BS_Unknown,
	BS_Dirty,
	BS_Error,
	BS_UpToDate,
	BS_BeingCreated,
	BS_UpToDateWithWarnings,
	BS_MAX
};

/** What kind of class a Blueprint makes. */
UENUM()
enum EBlueprintType : int
{
	BPTYPE_Normal,
	BPTYPE_Const,
	BPTYPE_MacroLibrary,
	BPTYPE_Interface,
	BPTYPE_LevelScript,
	BPTYPE_FunctionLibrary,
	BPTYPE_MAX
};

/** What a compile is for. */
namespace EKismetCompileType
{
enum Type
{
	SkeletonOnly,
	Full,
	StubAfterFailure,
	BytecodeOnly,
	Cpp
};
}

/** One metadata entry of a Blueprint variable. */
USTRUCT()
struct FBPVariableMetaDataEntry
{
	GENERATED_BODY()

	UPROPERTY()
	FName DataKey;

	UPROPERTY()
	FString DataValue;

	FBPVariableMetaDataEntry() = default;
	FBPVariableMetaDataEntry(const FName InKey, FString InValue)
		: DataKey(InKey)
		, DataValue(MoveTemp(InValue))
	{
	}

	bool operator==(const FBPVariableMetaDataEntry& Other) const { return DataKey == Other.DataKey && DataValue == Other.DataValue; }
};

/** A variable that a Blueprint declares, or a local variable of a function. */
USTRUCT()
struct FBPVariableDescription
{
	GENERATED_BODY()

	UPROPERTY()
	FName VarName;

	/** Kept through renames; what nodes refer to the variable by. */
	UPROPERTY()
	FGuid VarGuid;

	UPROPERTY()
	FEdGraphPinType VarType;

	UPROPERTY()
	FString FriendlyName;

	UPROPERTY()
	FText Category;

	/** CPF_ flags that the property gets. */
	UPROPERTY()
	uint64 PropertyFlags = CPF_Edit;

	UPROPERTY()
	FName RepNotifyFunc;

	UPROPERTY()
	TEnumAsByte<ELifetimeCondition> ReplicationCondition = COND_None;

	UPROPERTY()
	TArray<FBPVariableMetaDataEntry> MetaDataArray;

	/** In the property's text form; empty for the type's own default. */
	UPROPERTY()
	FString DefaultValue;

	ENGINE_API void SetMetaData(FName Key, FString Value);
	/** The key must be there; see HasMetaData. */
	ENGINE_API const FString& GetMetaData(FName Key) const;
	bool HasMetaData(FName Key) const { return FindMetaDataEntryIndexForKey(Key) != INDEX_NONE; }
	ENGINE_API int32 FindMetaDataEntryIndexForKey(FName Key) const;
	ENGINE_API void RemoveMetaData(FName Key);

	bool operator==(const FBPVariableDescription& Other) const
	{
		return VarName == Other.VarName && VarGuid == Other.VarGuid && VarType == Other.VarType &&
			FriendlyName == Other.FriendlyName && Category.EqualTo(Other.Category) && PropertyFlags == Other.PropertyFlags &&
			RepNotifyFunc == Other.RepNotifyFunc && ReplicationCondition == Other.ReplicationCondition &&
			MetaDataArray == Other.MetaDataArray && DefaultValue == Other.DefaultValue;
	}
};

/** An interface that a Blueprint implements, with the graphs of its functions. */
USTRUCT()
struct FBPInterfaceDescription
{
	GENERATED_BODY()

	UPROPERTY()
	TSubclassOf<class UInterface> Interface;

	UPROPERTY()
	TArray<TObjectPtr<UEdGraph>> Graphs;
};

/** A graph that the editor had open. Where its view stood, whose type differs between engines, is kept as it was read. */
USTRUCT()
struct FEditedDocumentInfo
{
	GENERATED_BODY()

	UPROPERTY()
	FSoftObjectPath EditedObjectPath;

	UPROPERTY()
	float SavedZoomAmount = -1.0f;

private:
	/** Where packages older than EditedObjectPath kept it. */
	UPROPERTY()
	TObjectPtr<UObject> EditedObject_DEPRECATED = nullptr;

public:
	FEditedDocumentInfo() = default;
	explicit FEditedDocumentInfo(UObject* InEditedObject)
		: EditedObjectPath(InEditedObject)
	{
	}

	/** Takes over what an older package kept. */
	void PostSerialize(const FArchive& Ar);

	friend bool operator==(const FEditedDocumentInfo& A, const FEditedDocumentInfo& B)
	{
		return A.EditedObjectPath == B.EditedObjectPath && A.SavedZoomAmount == B.SavedZoomAmount;
	}
};

template <>
struct TStructOpsTypeTraits<FEditedDocumentInfo> : public TStructOpsTypeTraitsBase2<FEditedDocumentInfo>
{
	enum
	{
		WithPostSerialize = true
	};
};

/** The class that a component's template had when it was saved, so that a template of a lost class can be told apart. */
USTRUCT()
struct FBPComponentClassOverride
{
	GENERATED_BODY()

	UPROPERTY()
	FName ComponentName;

	UPROPERTY()
	TObjectPtr<const UClass> ComponentClass = nullptr;
};

/** An asset that declares a class by variables, components and graphs. */
UCLASS(config = Engine)
class ENGINE_API UBlueprint : public UBlueprintCore
{
	GENERATED_BODY()

public:
	UBlueprint(const FObjectInitializer& ObjectInitializer = FObjectInitializer::Get());

	UPROPERTY()
	TSubclassOf<UObject> ParentClass;

	UPROPERTY()
	TEnumAsByte<EBlueprintType> BlueprintType = BPTYPE_Normal;

	/** Compiles each time it is loaded, whatever the loader thinks. */
	UPROPERTY()
	uint8 bRecompileOnLoad : 1;

	/** The generated class was built by this session. */
	UPROPERTY(NonTransactional, Transient)
	uint8 bHasBeenRegenerated : 1;

	UPROPERTY(NonTransactional, Transient)
	uint8 bIsRegeneratingOnLoad : 1;

	UPROPERTY(NonTransactional, Transient)
	uint8 bBeingCompiled : 1;

	UPROPERTY(NonTransactional, Transient)
	uint8 bQueuedForCompilation : 1;

	UPROPERTY(NonTransactional, Transient)
	uint8 bIsNewlyCreated : 1;

	UPROPERTY()
	uint8 bForceFullEditor : 1;

	UPROPERTY()
	uint8 bRunConstructionScriptOnDrag : 1;

	UPROPERTY()
	uint8 bRunConstructionScriptInSequencer : 1;

	UPROPERTY()
	uint8 bGenerateConstClass : 1;

	UPROPERTY()
	uint8 bGenerateAbstractClass : 1;

	UPROPERTY()
	uint8 bDeprecate : 1;

	UPROPERTY(Transient)
	mutable uint8 bDuplicatingReadOnly : 1;

	/** EBlueprintStatus of the last compile. */
	UPROPERTY(NonTransactional, Transient)
	TEnumAsByte<enum EBlueprintStatus> Status = BS_Unknown;

	UPROPERTY()
	FString BlueprintDisplayName;

	UPROPERTY()
	FString BlueprintDescription;

	UPROPERTY()
	FString BlueprintNamespace;

	UPROPERTY()
	FString BlueprintCategory;

	UPROPERTY()
	TArray<FString> HideCategories;

	/** Version of the Blueprint system that wrote this one. */
	UPROPERTY()
	int32 BlueprintSystemVersion = 0;

	UPROPERTY()
	TObjectPtr<USimpleConstructionScript> SimpleConstructionScript = nullptr;

	/** Graphs of the event graph: all of them become one function. */
	UPROPERTY()
	TArray<TObjectPtr<UEdGraph>> UbergraphPages;

	UPROPERTY()
	TArray<TObjectPtr<UEdGraph>> FunctionGraphs;

	/** One graph a dispatcher, whose entry node has the dispatcher's parameters. */
	UPROPERTY()
	TArray<TObjectPtr<UEdGraph>> DelegateSignatureGraphs;

	UPROPERTY()
	TArray<TObjectPtr<UEdGraph>> MacroGraphs;

	UPROPERTY(Transient)
	TArray<TObjectPtr<UEdGraph>> IntermediateGeneratedGraphs;

	UPROPERTY(Transient)
	TArray<TObjectPtr<UEdGraph>> EventGraphs;

	/** Templates of components that AddComponent nodes make. */
	UPROPERTY()
	TArray<TObjectPtr<UActorComponent>> ComponentTemplates;

	UPROPERTY()
	TArray<TObjectPtr<UTimelineTemplate>> Timelines;

	UPROPERTY()
	TArray<FBPComponentClassOverride> ComponentClassOverrides;

	/** Templates that override an inherited component's. */
	UPROPERTY()
	TObjectPtr<UInheritableComponentHandler> InheritableComponentHandler = nullptr;

	UPROPERTY()
	TArray<FBPVariableDescription> NewVariables;

	/** The user's order of categories. */
	UPROPERTY()
	TArray<FName> CategorySorting;

	UPROPERTY()
	TArray<FBPInterfaceDescription> ImplementedInterfaces;

	UPROPERTY()
	TArray<FEditedDocumentInfo> LastEditedDocuments;

	UPROPERTY()
	TSet<FString> ImportedNamespaces;

	DECLARE_EVENT_OneParam(UBlueprint, FChangedEvent, class UBlueprint*);
	FChangedEvent& OnChanged() { return ChangedEvent; }
	void BroadcastChanged() { ChangedEvent.Broadcast(this); }

	DECLARE_EVENT_OneParam(UBlueprint, FCompiledEvent, class UBlueprint*);
	FCompiledEvent& OnCompiled() { return CompiledEvent; }
	void BroadcastCompiled() { CompiledEvent.Broadcast(this); }

	/** The class that UBlueprint itself makes; kinds with classes of their own override it. */
	virtual UClass* GetBlueprintClass() const;
	virtual bool SupportsMacros() const { return true; }
	virtual bool SupportsGlobalVariables() const { return true; }
	virtual bool SupportsFunctions() const { return BlueprintType != BPTYPE_MacroLibrary; }
	virtual bool SupportsEventGraphs() const;
	virtual bool SupportsDelegates() const { return true; }
	virtual bool SupportsLocalVariables() const { return true; }
	virtual bool AlwaysCompileOnLoad() const { return false; }
	virtual bool ValidateGeneratedClass(const UClass* InClass);

	bool IsUpToDate() const { return Status == BS_UpToDate || Status == BS_UpToDateWithWarnings; }
	bool IsPossiblyDirty() const { return Status == BS_Dirty || Status == BS_Unknown; }
	bool IsPossibleDirty() const { return IsPossiblyDirty(); }

	/** Every graph of the Blueprint with the graphs nested in them, each once. */
	void GetAllGraphs(TArray<UEdGraph*>& Graphs) const;
	/** The dispatcher's signature graph, or null. */
	UEdGraph* GetDelegateSignatureGraphByName(FName Name) const;

	static UBlueprint* GetBlueprintFromClass(const UClass* InClass);
	/** As GetBlueprintFromClass; the spelling that newer code uses. */
	static UBlueprint* FindBlueprintFromClass(const UClass* InClass) { return GetBlueprintFromClass(InClass); }
	/** The Blueprints of the class and its parents, the class's own first. False when one of them has errors. */
	static bool GetBlueprintHierarchyFromClass(const UClass* InClass, TArray<UBlueprint*>& OutBlueprintParents);
	/** The name of a Blueprint-declared variable or function by its id; None when the class's Blueprints have no such member. */
	template <class TFieldType>
	static FName GetFieldNameFromClassByGuid(const UClass* InClass, const FGuid FieldGuid)
	{
		return std::is_base_of_v<FField, TFieldType> ? GetVariableNameFromClassByGuid(InClass, FieldGuid)
													 : GetFunctionNameFromClassByGuid(InClass, FieldGuid);
	}
	/** The id of a Blueprint-declared variable or function. False when the class's Blueprints declare no such member. */
	template <class TFieldType>
	static bool GetGuidFromClassByFieldName(const UClass* InClass, const FName FieldName, FGuid& FieldGuid)
	{
		return std::is_base_of_v<FField, TFieldType> ? GetVariableGuidFromClassByFieldName(InClass, FieldName, FieldGuid)
													 : GetFunctionGuidFromClassByFieldName(InClass, FieldName, FieldGuid);
	}
	static FName GetVariableNameFromClassByGuid(const UClass* InClass, const FGuid VarGuid);
	static bool GetVariableGuidFromClassByFieldName(const UClass* InClass, const FName VarName, FGuid& VarGuid);
	static FName GetFunctionNameFromClassByGuid(const UClass* InClass, const FGuid FunctionGuid);
	static bool GetFunctionGuidFromClassByFieldName(const UClass* InClass, const FName FunctionName, FGuid& FunctionGuid);

	UTimelineTemplate* FindTimelineTemplateByVariableName(const FName& TimelineName);
	const UTimelineTemplate* FindTimelineTemplateByVariableName(const FName& TimelineName) const;
	int32 FindTimelineIndex(const FName& TimelineName) const;
	/** The generated class's. Null where the Blueprint overrides no inherited component and none is to be made. */
	UInheritableComponentHandler* GetInheritableComponentHandler(bool bCreateIfNecessary);
	bool ShouldMarkDirtyOnModify() const { return !bBeingCompiled; }

	// UObject
	virtual FString GetDesc() override;
	virtual void PostLoad() override;
	virtual void PostEditUndo() override;
	using UObject::PostDuplicate;
	virtual void PostDuplicate(bool bDuplicateForPIE) override;
	virtual void Serialize(FArchive& Ar) override;
	/** What the asset registry tells of a Blueprint that is not loaded: its classes above all. */
	virtual void GetAssetRegistryTags(TArray<FAssetRegistryTag>& OutTags) const override;
	using UObject::GetAssetRegistryTags;

private:
	FChangedEvent ChangedEvent;
	FCompiledEvent CompiledEvent;
};
