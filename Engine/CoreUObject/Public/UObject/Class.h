#pragma once

#include "CoreMinimal.h"
#include "UObject/CppStructOps.h"
#include "UObject/Field.h"
#include "UObject/Object.h"
#include "UObject/ObjectPtr.h"
#include "UObject/ReflectedTypeAccessors.h"
#include "UObject/TopLevelAssetPath.h"

class FProperty;
class FStructuredArchiveSlot;
class UFunction;
class UPackage;
class UStruct;
class FDeclaredDefaults;
struct FReferenceSchema;

namespace EIncludeSuperFlag
{
enum Type
{
	ExcludeSuper,
	IncludeSuper
};
}

/** A reflected type or function: anything that has a place in a package and metadata of its own. */
class COREUOBJECT_API UField : public UObject
{
	DECLARE_CASTED_CLASS_INTRINSIC(UField, UObject, CLASS_Abstract, "/Script/CoreUObject", CASTCLASS_UField)

public:
	/** Next in the owner's Children chain. */
	TObjectPtr<UField> Next = nullptr;

	explicit UField(const FObjectInitializer& ObjectInitializer);
	UField() = default;

	void Serialize(FArchive& Ar) override;
	static void AddReferencedObjects(UObject* InThis, FReferenceCollector& Collector);
	virtual void AddCppProperty(FProperty* Property);
	/** Brings the C++ side and the super's inherited settings in, once. */
	virtual void Bind() {}

	UClass* GetOwnerClass() const;
	UStruct* GetOwnerStruct() const;
	FString GetAuthoredName() const { return GetAuthoredNameForField(this); }
	static FString GetAuthoredNameForField(const UField* Field);

	// Metadata
	/** Null where the key is missing. */
	const FString* FindMetaData(const TCHAR* Key) const;
	const FString* FindMetaData(const FName& Key) const;
	bool HasMetaData(const TCHAR* Key) const { return FindMetaData(Key) != nullptr; }
	bool HasMetaData(const FName& Key) const { return FindMetaData(Key) != nullptr; }
	/** Empty where the key is missing. */
	const FString& GetMetaData(const TCHAR* Key) const;
	const FString& GetMetaData(const FName& Key) const;
	/** The value as text, found in the localization namespace and key when those are given. */
	FText GetMetaDataText(
		const TCHAR* MetaDataKey, const FString LocalizationNamespace = FString(), const FString LocalizationKey = FString()) const;
	FText GetMetaDataText(
		const FName& MetaDataKey, const FString LocalizationNamespace = FString(), const FString LocalizationKey = FString()) const;
	void SetMetaData(const TCHAR* Key, const TCHAR* InValue);
	void SetMetaData(const FName& Key, const TCHAR* InValue);
	bool GetBoolMetaData(const TCHAR* Key) const;
	bool GetBoolMetaData(const FName& Key) const;
	int32 GetIntMetaData(const TCHAR* Key) const { return FCString::Atoi(*GetMetaData(Key)); }
	int32 GetIntMetaData(const FName& Key) const { return FCString::Atoi(*GetMetaData(Key)); }
	float GetFloatMetaData(const TCHAR* Key) const { return FCString::Atof(*GetMetaData(Key)); }
	float GetFloatMetaData(const FName& Key) const { return FCString::Atof(*GetMetaData(Key)); }
	UClass* GetClassMetaData(const TCHAR* Key) const;
	UClass* GetClassMetaData(const FName& Key) const;
	void RemoveMetaData(const TCHAR* Key);
	void RemoveMetaData(const FName& Key);

	/** The DisplayName, or the name split into words. */
	virtual FText GetDisplayNameText() const;
	/** The ToolTip without its parameter lines, or the display name. */
	FText GetToolTipText(bool bShortTooltip = false) const;
	/** Strips comment signs and indentation that a declaration's comment came with. */
	static void FormatNativeToolTip(FString& ToolTipString, bool bRemoveExtraSections = true);
};

/** A type with members, or a function with parameters: fields in two chains and a layout. */
class COREUOBJECT_API UStruct : public UField
{
	DECLARE_CASTED_CLASS_INTRINSIC(UStruct, UField, CLASS_MatchedSerializers, "/Script/CoreUObject", CASTCLASS_UStruct)

public:
	/** Functions and other types, through UField::Next. */
	TObjectPtr<UField> Children = nullptr;
	/** Properties in declaration order, through FField::Next. Owned. */
	FField* ChildProperties = nullptr;
	int32 PropertiesSize = 0;
	int32 MinAlignment = 1;
	/** Bytecode as it was read; the host keeps it and does not run it. */
	TArray<uint8> Script;
	/** Bytecode size in memory as the engine counted it. */
	int32 ScriptBytecodeSize = 0;
	/** All properties of this struct and its supers, most derived first. */
	FProperty* PropertyLink = nullptr;
	FProperty* RefLink = nullptr;
	FProperty* DestructorLink = nullptr;
	FProperty* PostConstructLink = nullptr;
	TArray<TObjectPtr<UObject>> ScriptAndPropertyObjectReferences;

	UStruct();
	explicit UStruct(const FObjectInitializer& ObjectInitializer);
	UStruct(UStruct* InSuperStruct, SIZE_T ParamsSize = 0, SIZE_T Alignment = 0);
	~UStruct() override;

	void Serialize(FArchive& Ar) override;
	void FinishDestroy() override;
	static void AddReferencedObjects(UObject* InThis, FReferenceCollector& Collector);
	void AddCppProperty(FProperty* Property) override;

	// Members
	FProperty* FindPropertyByName(FName InName) const;
	virtual FProperty* CustomFindProperty(const FName InName) const { return nullptr; }
	/** Whether members have ids that outlive a rename: saved values then carry theirs, and go to the member that has it when they load. */
	virtual bool ArePropertyGuidsAvailable() const { return false; }
	virtual FName FindPropertyNameFromGuid(const FGuid& PropertyGuid) const { return NAME_None; }
	virtual FGuid FindPropertyGuidFromName(const FName InName) const { return FGuid(); }
	/** The direct child, functions and types and properties alike; null when there is none. */
	UField* FindChild(FName InName) const;
	FField* FindChildProperty(FName InName) const;
	/** The name as a user typed it, for user-defined structs. */
	virtual FString GetAuthoredNameForField(const UField* Field) const;
	virtual FString GetAuthoredNameForField(const FField* Field) const;

	// Inheritance
	FORCEINLINE UStruct* GetSuperStruct() const { return SuperStruct; }
	UStruct* GetInheritanceSuper() const { return SuperStruct; }
	virtual void SetSuperStruct(UStruct* NewSuperStruct);
	FORCEINLINE bool IsChildOf(const UStruct* SomeBase) const
	{
		return SomeBase && SomeBase->Depth <= Depth && BaseChain[SomeBase->Depth] == SomeBase;
	}
	template <class T>
	bool IsChildOf() const
	{
		return IsChildOf(T::StaticClass());
	}

	// Layout
	FORCEINLINE int32 GetPropertiesSize() const { return PropertiesSize; }
	FORCEINLINE int32 GetMinAlignment() const { return MinAlignment; }
	int32 GetStructureSize() const { return Align(PropertiesSize, MinAlignment); }
	void SetPropertiesSize(int32 NewSize) { PropertiesSize = NewSize; }
	/** Lays this struct's own properties out after the super's (when relinking), and builds the link chains. */
	virtual void Link(FArchive& Ar, bool bRelinkExistingProperties);
	void StaticLink(bool bRelinkExistingProperties = false);
	virtual void InitializeStruct(void* Dest, int32 ArrayDim = 1) const;
	virtual void DestroyStruct(void* Dest, int32 ArrayDim = 1) const;
	/** Frees the owned properties. */
	void DestroyChildPropertiesAndResetPropertyLinks();

	// Values
	/** Every property's value without tags, in link order. */
	void SerializeBin(FArchive& Ar, void* Data) const;
	void SerializeBinEx(FArchive& Ar, void* Data, const void* DefaultData, const UStruct* DefaultStruct) const;
	/** Tag and value of every property that differs from Defaults, then None. */
	virtual void SerializeTaggedProperties(FArchive& Ar, uint8* Data, const UStruct* DefaultsStruct, uint8* Defaults,
		const UObject* BreakRecursionIfFullyLoad = nullptr) const;

	/** "A", "U" or "F". */
	virtual const TCHAR* GetPrefixCPP() const { return TEXT("F"); }
	/** The value of a key on this struct or the nearest super that has it; null when none has. */
	const FString* FindMetaDataHierarchical(const FName& Key) const;
	bool GetBoolMetaDataHierarchical(const FName& Key) const;
	bool GetStringMetaDataHierarchical(const FName& Key, FString* OutValue = nullptr) const;
	const UStruct* HasMetaDataHierarchical(const FName& Key) const;
	/** Stable while the struct keeps its identity; user-defined structs have one of their own. */
	virtual FGuid GetCustomGuid() const { return FGuid(); }

	/** What the collector visits in a value of this type. Built at first use, dropped by Link. */
	const FReferenceSchema& GetReferenceSchema() const;

	/** Values that this struct's own members start with where that is not zero. Takes them over. */
	void SetDeclaredDefaults(FDeclaredDefaults* InDefaults);
	void ApplyOwnDeclaredDefaults(void* Container) const;
	/** Of the supers too, root first. */
	void ApplyDeclaredDefaults(void* Container) const;

protected:
	void RebuildBaseChain();
	void DropReferenceSchema();

private:
	TObjectPtr<UStruct> SuperStruct = nullptr;
	/** This struct's supers from the root down to itself, at index Depth. */
	TArray<const UStruct*> BaseChain;
	int32 Depth = 0;
	mutable FReferenceSchema* ReferenceSchema = nullptr;
	FDeclaredDefaults* DeclaredDefaults = nullptr;

	friend struct FObjectBootstrap;
};

/** A reflected struct: native, user-defined, or of a header without C++. */
class COREUOBJECT_API UScriptStruct : public UStruct
{
	DECLARE_CASTED_CLASS_INTRINSIC(UScriptStruct, UStruct, CLASS_MatchedSerializers, "/Script/CoreUObject", CASTCLASS_UScriptStruct)

public:
	using ICppStructOps = ::ICppStructOps;
	template <class CPPSTRUCT>
	using TCppStructOps = ::TCppStructOps<CPPSTRUCT>;

	EStructFlags StructFlags = STRUCT_NoFlags;

	UScriptStruct() = default;
	explicit UScriptStruct(const FObjectInitializer& ObjectInitializer);
	~UScriptStruct() override;

	void Serialize(FArchive& Ar) override;
	void Link(FArchive& Ar, bool bRelinkExistingProperties) override;
	void InitializeStruct(void* Dest, int32 ArrayDim = 1) const override;
	void DestroyStruct(void* Dest, int32 ArrayDim = 1) const override;
	/** "FVector" of Vector. */
	virtual FString GetStructCPPName(uint32 CPPExportFlags = 0) const;

	void ClearScriptStruct(void* Dest, int32 ArrayDim = 1) const;
	void CopyScriptStruct(void* Dest, const void* Src, int32 ArrayDim = 1) const;
	/** Compares one value; B may be null, for a default one. */
	bool CompareScriptStruct(const void* A, const void* B, uint32 PortFlags) const;
	uint32 GetStructTypeHash(const void* Src) const;
	virtual void InitializeDefaultValue(uint8* InStructData) const;
	/** The struct's own serializer where it has one, else its members. */
	virtual void SerializeItem(FArchive& Ar, void* Value, void const* Defaults);

	/** Whole values in their text form; see FProperty for arguments. */
	void ExportText(FString& ValueStr, const void* Value, const void* Defaults, UObject* OwnerObject, int32 PortFlags,
		UObject* ExportRootScope, bool bAllowNativeOverride = true) const;
	const TCHAR* ImportText(const TCHAR* Buffer, void* Value, UObject* OwnerObject, int32 PortFlags, FOutputDevice* ErrorText,
		const FString& StructName, bool bAllowNativeOverride = true) const;

	/** Null for a struct that has no C++ type. */
	FORCEINLINE ICppStructOps* GetCppStructOps() const { return CppStructOps; }
	void SetCppStructOps(ICppStructOps* InOps);
	void PrepareCppStructOps();
	bool HasDefaults() const { return CppStructOps != nullptr; }
	bool IsPOD() const { return (StructFlags & STRUCT_IsPlainOldData) != 0; }
	bool ShouldSerializeAtomically(FArchive& Ar) const;
	bool UseBinarySerialization(const FArchive& Ar) const;
	bool UseNativeSerialization() const { return (StructFlags & STRUCT_SerializeNative) != 0; }
	virtual void RecursivelyPreload() {}

private:
	ICppStructOps* CppStructOps = nullptr;
};

/** A function's signature: parameters first in ChildProperties, then locals. */
class COREUOBJECT_API UFunction : public UStruct
{
	DECLARE_CASTED_CLASS_INTRINSIC(UFunction, UStruct, CLASS_MatchedSerializers, "/Script/CoreUObject", CASTCLASS_UFunction)

public:
	EFunctionFlags FunctionFlags = FUNC_None;
	uint8 NumParms = 0;
	uint16 ParmsSize = 0;
	/** Offset of the return value in the parameters, MAX_uint16 without one. */
	uint16 ReturnValueOffset = MAX_uint16;
	uint16 RPCId = 0;
	uint16 RPCResponseId = 0;
	FProperty* FirstPropertyToInit = nullptr;
	/** The uber-graph function and offset that an event stub jumps to. */
	TObjectPtr<UFunction> EventGraphFunction = nullptr;
	int32 EventGraphCallOffset = 0;

	UFunction() = default;
	explicit UFunction(const FObjectInitializer& ObjectInitializer);

	void Serialize(FArchive& Ar) override;
	static void AddReferencedObjects(UObject* InThis, FReferenceCollector& Collector);
	void Link(FArchive& Ar, bool bRelinkExistingProperties) override;
	void Bind() override {}

	UFunction* GetSuperFunction() const { return static_cast<UFunction*>(GetSuperStruct()); }
	/** Null for a function without a return value. */
	FProperty* GetReturnProperty() const;
	/** Counts and places the parameters after properties were added. */
	void InitializeDerivedMembers();
	bool HasAnyFunctionFlags(EFunctionFlags FlagsToCheck) const { return (FunctionFlags & FlagsToCheck) != 0; }
	bool HasAllFunctionFlags(EFunctionFlags FlagsToCheck) const { return (FunctionFlags & FlagsToCheck) == FlagsToCheck; }
	static uint64 GetDefaultIgnoredSignatureCompatibilityFlags();
	/** Whether a call of one may be bound to the other: same parameter types in the same order. */
	bool IsSignatureCompatibleWith(const UFunction* OtherFunction) const;
	bool IsSignatureCompatibleWith(const UFunction* OtherFunction, uint64 IgnoreFlags) const;
	UClass* GetOuterUClass() const;
	UClass* GetOuterUClassUnchecked() const { return reinterpret_cast<UClass*>(GetOuter()); }

private:
	void CutSuperFromLinks();
};

class COREUOBJECT_API UDelegateFunction : public UFunction
{
	DECLARE_CASTED_CLASS_INTRINSIC(UDelegateFunction, UFunction, CLASS_None, "/Script/CoreUObject", CASTCLASS_UDelegateFunction)

public:
	UDelegateFunction() = default;
	explicit UDelegateFunction(const FObjectInitializer& ObjectInitializer);
};

class COREUOBJECT_API USparseDelegateFunction : public UDelegateFunction
{
	DECLARE_CASTED_CLASS_INTRINSIC(
		USparseDelegateFunction, UDelegateFunction, CLASS_None, "/Script/CoreUObject", CASTCLASS_USparseDelegateFunction)

public:
	FName OwningClassName;
	FName DelegateName;

	USparseDelegateFunction() = default;
	explicit USparseDelegateFunction(const FObjectInitializer& ObjectInitializer);
	void Serialize(FArchive& Ar) override;
};

enum class EEnumFlags
{
	None,
	Flags = 0x00000001,
	NewerVersionExists = 0x00000002,
};
ENUM_CLASS_FLAGS(EEnumFlags)

enum class EGetByNameFlags
{
	None = 0,
	ErrorIfNotFound = 0x01,
	CaseSensitive = 0x02,
	CheckAuthoredName = 0x04,
};
ENUM_CLASS_FLAGS(EGetByNameFlags)

/** An enumeration. Names are full: "EDoor::Open" unless the form is Regular. The last one may be the generated _MAX. */
class COREUOBJECT_API UEnum : public UField
{
	DECLARE_CASTED_CLASS_INTRINSIC(UEnum, UField, CLASS_None, "/Script/CoreUObject", CASTCLASS_UEnum)

public:
	enum class ECppForm
	{
		Regular,
		Namespaced,
		EnumClass
	};

	/** How the type is spelled in C++: "EDoor", "EDoor::Type". */
	FString CppType;

	UEnum() = default;
	explicit UEnum(const FObjectInitializer& ObjectInitializer);

	void Serialize(FArchive& Ar) override;

	// Enumerators
	int32 NumEnums() const { return Names.Num(); }
	int64 GetValueByIndex(int32 Index) const;
	FName GetNameByIndex(int32 Index) const;
	/** INDEX_NONE where there is none. Takes short and full names. */
	int32 GetIndexByName(FName InName, EGetByNameFlags Flags = EGetByNameFlags::None) const;
	int32 GetIndexByNameString(const FString& InSearchString, EGetByNameFlags Flags = EGetByNameFlags::None) const;
	int32 GetIndexByValue(int64 InValue) const;
	FName GetNameByValue(int64 InValue) const;
	/** INDEX_NONE where there is none. */
	int64 GetValueByName(FName InName, EGetByNameFlags Flags = EGetByNameFlags::None) const;
	int64 GetValueByNameString(const FString& SearchString, EGetByNameFlags Flags = EGetByNameFlags::None) const;
	/** The short name: "Open". Empty where there is none. */
	virtual FString GetNameStringByIndex(int32 InIndex) const;
	FString GetNameStringByValue(int64 InValue) const;
	bool FindNameStringByValue(FString& Out, int64 InValue) const;
	virtual FText GetDisplayNameTextByIndex(int32 InIndex) const;
	FText GetDisplayNameTextByValue(int64 InValue) const;
	bool FindDisplayNameTextByValue(FText& Out, int64 InValue) const;
	FString GetAuthoredNameStringByIndex(int32 InIndex) const { return GetNameStringByIndex(InIndex); }
	FString GetAuthoredNameStringByValue(int64 InValue) const { return GetNameStringByValue(InValue); }
	virtual FString GetAuthoredNameStringByIndexForUser(int32 InIndex) const { return GetNameStringByIndex(InIndex); }
	/** The names of a flag enum's set bits: "A | B". */
	virtual FString GetValueOrBitfieldAsString(int64 InValue) const;
	FText GetToolTipTextByIndex(int32 NameIndex) const;
	int64 GetMaxEnumValue() const;
	bool IsValidEnumValue(int64 InValue) const;
	bool IsValidEnumValueOrBitfield(int64 InValue) const;
	bool IsValidEnumName(FName InName) const;
	/** Whether the last enumerator is the generated one. */
	bool ContainsExistingMax() const;

	// Definition
	/** Replaces the enumerators and, when asked, appends the _MAX of the form. */
	virtual bool SetEnums(const TArray<TPair<FName, int64>>& InNames, ECppForm InCppForm, EEnumFlags InFlags = EEnumFlags::None,
		bool bAddMaxKeyIfMissing = true);
	/** "EDoor" of EDoor::Open..., the longest prefix that all enumerators share for a regular one. */
	FString GenerateEnumPrefix() const;
	virtual FString GenerateFullEnumName(const TCHAR* InEnumName) const;
	static FString GenerateFullEnumName(const UEnum* InEnum, const TCHAR* InEnumName);
	static bool IsFullEnumName(const TCHAR* InEnumName);
	ECppForm GetCppForm() const { return CppForm; }
	bool HasAnyEnumFlags(EEnumFlags InFlags) const { return EnumHasAnyFlags(EnumFlags, InFlags); }
	void SetEnumFlags(EEnumFlags InFlags) { EnumFlags |= InFlags; }
	/** Finds an enumerator of any enum by its full name. */
	static int64 LookupEnumName(FName PackageName, FName TestName);
	static int64 LookupEnumNameSlow(const TCHAR* InTestShortName);

	// Metadata of an enumerator; NameIndex INDEX_NONE means the enum itself.
	FString GetMetaData(const TCHAR* Key, int32 NameIndex = INDEX_NONE, bool bAllowRemap = true) const;
	bool HasMetaData(const TCHAR* Key, int32 NameIndex = INDEX_NONE) const;
	void SetMetaData(const TCHAR* Key, const TCHAR* InValue, int32 NameIndex = INDEX_NONE) const;
	void RemoveMetaData(const TCHAR* Key, int32 NameIndex = INDEX_NONE) const;

	/** The short text of a value of a reflected enum: "EDoor::Open". */
	template <typename EnumType>
	static FString GetValueAsString(EnumType EnumeratorValue)
	{
		return StaticEnum<EnumType>()->GetNameByValue(static_cast<int64>(EnumeratorValue)).ToString();
	}
	template <typename EnumType>
	static FText GetDisplayValueAsText(EnumType EnumeratorValue)
	{
		return StaticEnum<EnumType>()->GetDisplayNameTextByValue(static_cast<int64>(EnumeratorValue));
	}

protected:
	TArray<TPair<FName, int64>> Names;
	ECppForm CppForm = ECppForm::Regular;
	EEnumFlags EnumFlags = EEnumFlags::None;

private:
	FName MetaDataKey(const TCHAR* Key, int32 NameIndex) const;
};

/** An interface that a class implements. */
struct FImplementedInterface
{
	TObjectPtr<UClass> Class = nullptr;
	/** Bytes from the object to its C++ base; 0 when implemented by Blueprint. */
	int32 PointerOffset = 0;
	bool bImplementedByK2 = false;

	FImplementedInterface() = default;
	FImplementedInterface(UClass* InClass, int32 InOffset, bool InImplementedByK2 = false)
		: Class(InClass)
		, PointerOffset(InOffset)
		, bImplementedByK2(InImplementedByK2)
	{
	}
	friend COREUOBJECT_API FArchive& operator<<(FArchive& Ar, FImplementedInterface& A);
};

/** A class: its constructor, its default object, its functions. */
class COREUOBJECT_API UClass : public UStruct
{
	DECLARE_CASTED_CLASS_INTRINSIC(UClass, UStruct, CLASS_None, "/Script/CoreUObject", CASTCLASS_UClass)

public:
	typedef void (*ClassConstructorType)(const FObjectInitializer&);
	typedef void (*ClassAddReferencedObjectsType)(UObject*, FReferenceCollector&);

	ClassConstructorType ClassConstructor = nullptr;
	ClassAddReferencedObjectsType ClassAddReferencedObjects = nullptr;
	int32 ClassUnique = 0;
	EClassFlags ClassFlags = CLASS_None;
	EClassCastFlags ClassCastFlags = CASTCLASS_None;
	/** Class that an instance's outer must be. */
	TObjectPtr<UClass> ClassWithin = nullptr;
	/** The Blueprint that makes this class. */
	TObjectPtr<UObject> ClassGeneratedBy = nullptr;
	FName ClassConfigName;
	bool bCooked = false;
	bool bLayoutChanging = false;
	bool bNeedsDynamicSubobjectInstancing = false;
	/** Declared by a header without C++: native to everybody but the allocator and the collector. */
	bool bLaidOutAtRunTime = false;
	/** Made for a class that this host does not have; see UObject/PlaceholderObject.h. */
	bool bStandsInForUnknown = false;
	TArray<FImplementedInterface> Interfaces;
	TObjectPtr<UObject> ClassDefaultObject = nullptr;

	UClass();
	explicit UClass(const FObjectInitializer& ObjectInitializer);
	~UClass() override;

	void Serialize(FArchive& Ar) override;
	void FinishDestroy() override;
	static void AddReferencedObjects(UObject* InThis, FReferenceCollector& Collector);
	void SetSuperStruct(UStruct* NewSuperStruct) override;
	void Bind() override;
	void Link(FArchive& Ar, bool bRelinkExistingProperties) override;
	bool Rename(const TCHAR* NewName = nullptr, UObject* NewOuter = nullptr, ERenameFlagsType Flags = REN_None) override;
	FString GetDesc() override;
	const TCHAR* GetPrefixCPP() const override;

	UClass* GetSuperClass() const { return static_cast<UClass*>(GetSuperStruct()); }

	// Default object
	/** Made at the first call, the super's first. Null only when bCreateIfNeeded is false and there is none yet. */
	UObject* GetDefaultObject(bool bCreateIfNeeded = true) const
	{
		if (!ClassDefaultObject && bCreateIfNeeded)
		{
			const_cast<UClass*>(this)->CreateDefaultObject();
		}
		return ClassDefaultObject;
	}
	template <class T>
	T* GetDefaultObject() const
	{
		return static_cast<T*>(GetDefaultObject());
	}
	void SetDefaultObject(UObject* InDefaultObject) { ClassDefaultObject = InDefaultObject; }
	/** "Default__Actor". */
	FName GetDefaultObjectName() const;
	virtual UObject* CreateDefaultObject();
	virtual void PostInitInstance(UObject* InObj, struct FObjectInstancingGraph* InstanceGraph) {}
	UObject* GetDefaultSubobjectByName(FName ToFind);
	void GetDefaultObjectSubobjects(TArray<UObject*>& OutDefaultSubobjects);
	/** Makes templates found by name in Blueprint classes: component templates, timelines. */
	virtual UObject* FindArchetype(const UClass* ArchetypeClass, const FName ArchetypeName) const { return nullptr; }
	virtual UObject* GetArchetypeForCDO() const;

	// Functions
	void AddFunctionToFunctionMap(UFunction* Function, FName FuncName);
	/** As many calls of the above, but the caches of derived classes are cleared only once. */
	void AddFunctionsToFunctionMap(TConstArrayView<UFunction*> Functions);
	void RemoveFunctionFromFunctionMap(UFunction* Function);
	void ClearFunctionMapsCaches() { SuperFuncMap.Empty(); }
	UFunction* FindFunctionByName(FName InName, EIncludeSuperFlag::Type IncludeSuper = EIncludeSuperFlag::IncludeSuper) const;
	void GenerateFunctionList(TArray<FName>& OutArray) const;
	virtual bool IsFunctionImplementedInScript(FName InFunctionName) const { return false; }

	// Interfaces
	/** Through supers and super interfaces. */
	bool ImplementsInterface(const UClass* SomeInterface) const;
	const FImplementedInterface* FindImplementedInterface(const UClass* SomeInterface) const;

	// Flags
	bool HasAnyClassFlags(EClassFlags FlagsToCheck) const { return (ClassFlags & FlagsToCheck) != 0; }
	bool HasAllClassFlags(EClassFlags FlagsToCheck) const { return (ClassFlags & FlagsToCheck) == FlagsToCheck; }
	EClassFlags GetClassFlags() const { return ClassFlags; }
	bool HasAnyCastFlag(EClassCastFlags FlagToCheck) const { return (ClassCastFlags & FlagToCheck) != 0; }
	bool HasAllCastFlags(EClassCastFlags FlagsToCheck) const { return (ClassCastFlags & FlagsToCheck) == FlagsToCheck; }

	// Kin
	/** The class that users mean by this one: of a skeleton class, its Blueprint's generated class. */
	virtual UClass* GetAuthoritativeClass() { return this; }
	const UClass* GetAuthoritativeClass() const { return const_cast<UClass*>(this)->GetAuthoritativeClass(); }
	static UClass* FindCommonBase(UClass* InClassA, UClass* InClassB);
	static UClass* FindCommonBase(const TArray<UClass*>& InClasses);
	FString GetConfigName() const;
	FTopLevelAssetPath GetClassPathName() const { return FTopLevelAssetPath(this); }
	/** The path that a class's objects name it by: the first native class above. */
	FTopLevelAssetPath GetStructPathName() const { return FTopLevelAssetPath(this); }
	/** Empties the class so that a Blueprint can be compiled into it again. */
	virtual void PurgeClass(bool bRecompilingOnLoad);
	virtual bool CanPropagateChildPropertiesFromSuper() const { return true; }
	void AssembleReferenceTokenStream(bool bForce = false) { (void)GetReferenceSchema(); }
	bool ShouldUseDynamicSubobjectInstancing() const { return bNeedsDynamicSubobjectInstancing; }

	/** Finds a type by path or by short name, the native one first. */
	template <typename T>
	static T* TryFindTypeSlow(const FString& InPathNameOrShortName)
	{
		return static_cast<T*>(TryFindTypeByName(T::StaticClass(), InPathNameOrShortName));
	}
	static UField* TryFindTypeByName(UClass* TypeClass, const FString& InPathNameOrShortName);

private:
	void ClearFunctionMapsCachesOfFamily();

	TMap<FName, TObjectPtr<UFunction>> FuncMap;
	mutable TMap<FName, UFunction*> SuperFuncMap;
};

/** Whether a C++ constructor makes all of the class's members. Other classes have memory beyond their native super's. */
FORCEINLINE bool IsNativeClass(const UClass* Class)
{
	return Class->HasAnyClassFlags(static_cast<EClassFlags>(CLASS_Native | CLASS_Intrinsic)) && !Class->bLaidOutAtRunTime;
}
/** Whether no C++ constructor knows the property: of a class made at run time, or added to a native one (marked RF_Dynamic). */
COREUOBJECT_API bool HasRunTimeStorage(const FProperty* Property);

/** Structs of Core, which have no StaticStruct() of their own. Specialised in UObject/NoExportTypes.h. */
template <class BaseStruct>
struct TBaseStructure
{
	static UScriptStruct* Get() { return BaseStruct::StaticStruct(); }
};
template <class BaseStruct>
struct TVariantStructure;
