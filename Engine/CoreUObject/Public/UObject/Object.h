#pragma once

#include "UObject/ObjectMacros.h"
#include "UObject/PrimaryAssetId.h"
#include "UObject/UObjectBaseUtility.h"

class FArchive;
class FAssetRegistryTagsContext;
class FObjectPreSaveContext;
class FOutputDevice;
class FProperty;
class ITransactionObjectAnnotation;
class UFunction;
class UStruct;
class UWorld;
struct FPropertyChangedEvent;
struct FPropertyChangedChainEvent;
class FEditPropertyChain;

/**
 * The base of everything reflected. Made with NewObject, found by name and outer, freed by collection; never with `new` or
 * `delete`. Game thread.
 */
class COREUOBJECT_API UObject : public UObjectBaseUtility
{
public:
	typedef UObject ThisClass;
	typedef UObject WithinClass;
	static constexpr EClassFlags StaticClassFlags = CLASS_Abstract;
	static constexpr EClassCastFlags StaticClassCastFlags = CASTCLASS_None;
	static const char* StaticPackageUTF8() { return "/Script/CoreUObject"; }
	static UClass* StaticClass();
	static void __DefaultConstructor(const FObjectInitializer& Initializer);

	/** A tag of an asset, as its package's registry data stores it. */
	struct FAssetRegistryTag
	{
		enum ETagType
		{
			TT_Hidden,
			TT_Alphabetical,
			TT_Numerical,
			TT_Dimensional,
			TT_Chronological,
		};
		FAssetRegistryTag() = default;
		FAssetRegistryTag(FName InName, const FString& InValue, ETagType InType, uint32 InDisplayFlags = 0)
			: Name(InName)
			, Value(InValue)
			, Type(InType)
			, DisplayFlags(InDisplayFlags)
		{
		}
		FName Name;
		FString Value;
		ETagType Type = TT_Hidden;
		uint32 DisplayFlags = 0;
	};

	UObject();
	explicit UObject(const FObjectInitializer& ObjectInitializer);

	// Construction
	/** Values are set and sub-objects are in place; run for default objects too. */
	virtual void PostInitProperties() {}
	virtual void PostReinitProperties() {}
	virtual void PostCDOContruct() {}
	virtual void PostLoad();
	virtual void PostLoadSubobjects(struct FObjectInstancingGraph* OuterInstanceGraph);
	void ConditionalPostLoad();
	void ConditionalPostLoadSubobjects(struct FObjectInstancingGraph* OuterInstanceGraph = nullptr);
	virtual void PostDuplicate(bool bDuplicateForPIE) {}
	virtual void PostDuplicate(EDuplicateMode::Type DuplicateMode) { PostDuplicate(DuplicateMode == EDuplicateMode::PIE); }
	virtual void PreDuplicate(struct FObjectDuplicationParameters& DupParams) {}
	virtual void PostRename(UObject* OldOuter, const FName OldName) {}
	virtual void PostEditImport() {}
	virtual void PreSave(FObjectPreSaveContext SaveContext);
	virtual void PreSaveRoot(FObjectPreSaveContext ObjectSaveContext);
	virtual void PostSaveRoot(class FObjectPostSaveRootContext ObjectSaveContext);

	// Destruction
	/** The first step: let go of threads and devices. */
	virtual void BeginDestroy();
	/** Asked until it answers true, then FinishDestroy follows. */
	virtual bool IsReadyForFinishDestroy() { return true; }
	virtual void FinishDestroy();
	bool ConditionalBeginDestroy();
	bool ConditionalFinishDestroy();
	virtual bool IsDestructionThreadSafe() const { return false; }

	// State
	/** Reads or writes the object's whole state: packages, undo and duplication alike. Call Super. */
	virtual void Serialize(FArchive& Ar);
	void SerializeScriptProperties(FArchive& Ar) const;
	/** What the object holds beyond reflected properties. A class may declare its own; it calls Super's. */
	static void AddReferencedObjects(UObject* InThis, FReferenceCollector& Collector) {}
	/** Call before each change: remembers the state in the open transaction. Answers whether it was remembered. */
	virtual bool Modify(bool bAlwaysMarkDirty = true);
	virtual bool CanModify() const { return true; }
	virtual bool IsAsset() const;
	virtual FPrimaryAssetId GetPrimaryAssetId() const { return FPrimaryAssetId(); }
	virtual void GetAssetRegistryTags(FAssetRegistryTagsContext Context) const;
	virtual void GetAssetRegistryTags(TArray<FAssetRegistryTag>& OutTags) const;
	virtual bool IsEditorOnly() const { return false; }
	virtual bool NeedsLoadForClient() const { return true; }
	virtual bool NeedsLoadForServer() const { return true; }
	virtual bool IsPostLoadThreadSafe() const { return false; }
	virtual bool IsNameStableForNetworking() const
	{
		return HasAnyFlags(static_cast<EObjectFlags>(RF_WasLoaded | RF_DefaultSubObject)) || IsNative();
	}
	virtual bool IsSelectable() const { return true; }
	/** One line about the object for a list. */
	virtual FString GetDesc() { return FString(); }
	virtual FString GetDetailedInfoInternal() const { return TEXT("No_Detailed_Info_Specified"); }
	FString GetDetailedInfo() const { return GetDetailedInfoInternal(); }
	/** The world that the object is in: its outer's, unless it knows better. */
	virtual UWorld* GetWorld() const;
	virtual bool ImplementsGetWorld() const { return true; }
	virtual void GetPreloadDependencies(TArray<UObject*>& OutDeps);
	virtual void ExportCustomProperties(FOutputDevice& Out, uint32 Indent) {}
	virtual void ImportCustomProperties(const TCHAR* SourceText, class FFeedbackContext* Warn) {}

	// Edits
	virtual void PreEditChange(FProperty* PropertyAboutToChange);
	virtual void PreEditChange(FEditPropertyChain& PropertyAboutToChange);
	virtual bool CanEditChange(const FProperty* InProperty) const;
	void PostEditChange();
	virtual void PostEditChangeProperty(FPropertyChangedEvent& PropertyChangedEvent);
	virtual void PostEditChangeChainProperty(FPropertyChangedChainEvent& PropertyChangedEvent);
	virtual void PreEditUndo();
	virtual void PostEditUndo();
	virtual void PostTransacted(const class FTransactionObjectEvent& TransactionEvent) {}

	// Names and outers
	/** Moves or renames; null keeps what is. Answers false, and logs why unless under REN_Test, when the name is taken. */
	virtual bool Rename(const TCHAR* NewName = nullptr, UObject* NewOuter = nullptr, ERenameFlagsType Flags = REN_None);

	// Sub-objects
	/** Only in a constructor: makes a part that every instance has. */
	UObject* CreateDefaultSubobject(
		FName SubobjectFName, UClass* ReturnType, UClass* ClassToCreateByDefault, bool bIsRequired, bool bIsTransient);
	template <class TReturnType>
	TReturnType* CreateDefaultSubobject(FName SubobjectName, bool bTransient = false)
	{
		UClass* const ReturnType = TReturnType::StaticClass();
		return static_cast<TReturnType*>(CreateDefaultSubobject(SubobjectName, ReturnType, ReturnType, true, bTransient));
	}
	template <class TReturnType, class TClassToConstructByDefault>
	TReturnType* CreateDefaultSubobject(FName SubobjectName, bool bTransient = false)
	{
		return static_cast<TReturnType*>(
			CreateDefaultSubobject(SubobjectName, TReturnType::StaticClass(), TClassToConstructByDefault::StaticClass(), true, bTransient));
	}
	template <class TReturnType>
	TReturnType* CreateOptionalDefaultSubobject(FName SubobjectName, bool bTransient = false)
	{
		UClass* const ReturnType = TReturnType::StaticClass();
		return static_cast<TReturnType*>(CreateDefaultSubobject(SubobjectName, ReturnType, ReturnType, false, bTransient));
	}
	template <class TReturnType>
	TReturnType* CreateEditorOnlyDefaultSubobject(FName SubobjectName, bool bTransient = false)
	{
		return CreateOptionalDefaultSubobject<TReturnType>(SubobjectName, bTransient);
	}
	UObject* GetDefaultSubobjectByName(FName ToFind);
	void GetDefaultSubobjects(TArray<UObject*>& OutDefaultSubobjects);
	/** The object whose values this one started from: the same part of its outer's archetype, or its class's default object. */
	UObject* GetArchetype() const;
	static UObject* GetArchetypeFromRequiredInfo(const UClass* Class, const UObject* Outer, FName Name, EObjectFlags ObjectFlags);
	void GetArchetypeInstances(TArray<UObject*>& Instances);
	bool IsBasedOnArchetype(const UObject* const TestArchetype) const;
	/** Gives every instanced sub-object that still is the archetype's a copy of this object's own. */
	void InstanceSubobjectTemplates(struct FObjectInstancingGraph* InstanceGraph = nullptr);
	void ReinitializeProperties(UObject* SourceObject = nullptr, struct FObjectInstancingGraph* InstanceGraph = nullptr);

	// Functions
	UFunction* FindFunction(FName InName) const;
	UFunction* FindFunctionChecked(FName InName) const;
	/**
	 * The host does not run script: bytecode and native thunks are not there to be run. Calling a function writes a verbose log
	 * line and leaves Parms as they are. Override it to serve calls.
	 */
	virtual void ProcessEvent(UFunction* Function, void* Parms);

	// Config
	/** Reads the config properties from the class's ini; a class default object does so when it is made. */
	void LoadConfig(
		UClass* ConfigClass = nullptr, const TCHAR* Filename = nullptr, uint32 PropagationFlags = 0, FProperty* PropertyToLoad = nullptr);
	void SaveConfig(uint64 Flags = CPF_Config, const TCHAR* Filename = nullptr);
	bool TryUpdateDefaultConfigFile(const FString& SpecificFileLocation = FString());

	bool IsInBlueprint() const;
	/** Whether some object keeps this one from collection. */
	static bool IsReferenced(UObject*& Res, EObjectFlags KeepFlags, EInternalObjectFlags InternalKeepFlags, bool bCheckSubObjects = false);

private:
	friend class FObjectInitializer;
	friend struct FObjectBootstrap;
};

/** Not null, and not given up. The one test for "may I use this". */
COREUOBJECT_API bool IsValid(const UObject* Test);
