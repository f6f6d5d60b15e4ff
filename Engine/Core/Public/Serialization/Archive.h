#pragma once

#include "CoreTypes.h"
#include "HAL/UnrealMemory.h"
#include "Misc/EnumClassFlags.h"
#include "Templates/UnrealTemplate.h"
#include "UObject/ObjectVersion.h"

#include <concepts>

class FArchive;
class FCustomVersionContainer;
class FField;
class FLinker;
class FName;
class FProperty;
class FString;
class FText;
class UObject;
struct FGuid;
struct FLazyObjectPtr;
struct FObjectPtr;
struct FSoftObjectPath;
struct FSoftObjectPtr;
struct FUObjectSerializeContext;
struct FWeakObjectPtr;

/** What an archive does and how, apart from the bytes. */
class CORE_API FArchiveState
{
public:
	FArchiveState();
	FArchiveState(const FArchiveState& Other);
	FArchiveState& operator=(const FArchiveState& Other);
	virtual ~FArchiveState();

	virtual FString GetArchiveName() const;
	virtual FLinker* GetLinker() { return nullptr; }

	/** Offset in bytes from the start, or INDEX_NONE if the archive has no position. */
	virtual int64 Tell() { return INDEX_NONE; }
	/** Bytes in all, or INDEX_NONE if that is not known. */
	virtual int64 TotalSize() { return INDEX_NONE; }
	virtual bool AtEnd();

	bool GetError() const { return ArIsError; }
	bool IsError() const { return ArIsError; }
	/** Puts the archive into its error state, which it keeps: later reads give zeros. */
	virtual void SetError() { ArIsError = true; }
	void ClearError() { ArIsError = false; }
	void SetCriticalError()
	{
		ArIsCriticalError = true;
		SetError();
	}
	bool IsCriticalError() const { return ArIsCriticalError; }

	bool IsLoading() const { return ArIsLoading; }
	bool IsSaving() const { return ArIsSaving; }
	bool IsTransacting() const { return ArIsTransacting; }
	bool IsTextFormat() const { return ArIsTextFormat; }
	bool WantBinaryPropertySerialization() const { return ArWantBinaryPropertySerialization; }
	bool IsUsingEventDrivenLoader() const { return false; }
	bool IsForcingUnicode() const { return ArForceUnicode; }
	bool IsPersistent() const { return ArIsPersistent; }
	bool IsContainingCode() const { return ArContainsCode; }
	bool IsContainingMap() const { return ArContainsMap; }
	bool IsByteSwapping() const { return false; }
	bool RequiresLocalizationGather() const { return ArRequiresLocalizationGather; }
	bool ForceByteSwapping() const { return false; }
	bool IsSerializingDefaults() const { return ArSerializingDefaults > 0; }
	bool IsIgnoringArchetypeRef() const { return ArIgnoreArchetypeRef; }
	bool DoDelta() const { return !ArNoDelta; }
	bool DoIntraPropertyDelta() const { return !ArNoIntraPropertyDelta; }
	bool IsIgnoringOuterRef() const { return ArIgnoreOuterRef; }
	bool IsIgnoringClassGeneratedByRef() const { return ArIgnoreClassGeneratedByRef; }
	bool IsIgnoringClassRef() const { return ArIgnoreClassRef; }
	bool IsAllowingLazyLoading() const { return ArAllowLazyLoading; }
	bool IsObjectReferenceCollector() const { return ArIsObjectReferenceCollector; }
	bool IsModifyingWeakAndStrongReferences() const { return ArIsModifyingWeakAndStrongReferences; }
	bool IsCountingMemory() const { return ArIsCountingMemory; }
	bool ShouldSkipBulkData() const { return ArShouldSkipBulkData; }
	bool IsFilterEditorOnly() const { return ArIsFilterEditorOnly; }
	bool IsSaveGame() const { return ArIsSaveGame; }
	bool IsNetArchive() const { return ArIsNetArchive; }
	bool IsCooking() const { return false; }
	bool IsSavingOptionalObject() const { return false; }
	/** The largest count or length that a reader accepts; 0 is no limit beside what the archive could hold. */
	int64 GetMaxSerializeSize() const { return ArMaxSerializeSize; }
	uint32 GetPortFlags() const { return static_cast<uint32>(ArPortFlags); }
	bool HasAnyPortFlags(uint32 Flags) const { return (static_cast<uint32>(ArPortFlags) & Flags) != 0; }
	bool HasAllPortFlags(uint32 Flags) const { return (static_cast<uint32>(ArPortFlags) & Flags) == Flags; }

	FPackageFileVersion UEVer() const { return ArUEVer; }
	int32 UE4Ver() const { return ArUEVer.FileVersionUE4; }
	int32 LicenseeUEVer() const { return ArLicenseeUEVer; }
	int32 LicenseeUE4Ver() const { return ArLicenseeUEVer; }
	virtual void SetUEVer(FPackageFileVersion InVer) { ArUEVer = InVer; }
	virtual void SetLicenseeUEVer(int32 InVer) { ArLicenseeUEVer = InVer; }

	/** Version of one plug-in's or feature's data in this archive, -1 if the archive has none. */
	int32 CustomVer(const FGuid& Key) const;
	/** Versions of this archive. A loader that set none of its own has the ones registered now. */
	virtual const FCustomVersionContainer& GetCustomVersions() const;
	virtual void SetCustomVersions(const FCustomVersionContainer& CustomVersionContainer);
	virtual void ResetCustomVersions();
	void SetCustomVersion(const FGuid& Key, int32 Version, const FName& FriendlyName);

	virtual void SetIsLoading(bool bInIsLoading) { ArIsLoading = bInIsLoading; }
	virtual void SetIsSaving(bool bInIsSaving) { ArIsSaving = bInIsSaving; }
	virtual void SetIsTransacting(bool bInIsTransacting) { ArIsTransacting = bInIsTransacting; }
	virtual void SetIsTextFormat(bool bInIsTextFormat) { ArIsTextFormat = bInIsTextFormat; }
	virtual void SetWantBinaryPropertySerialization(bool bInWant) { ArWantBinaryPropertySerialization = bInWant; }
	virtual void SetForceUnicode(bool bInForceUnicode) { ArForceUnicode = bInForceUnicode; }
	virtual void SetIsPersistent(bool bInIsPersistent) { ArIsPersistent = bInIsPersistent; }
	virtual void SetFilterEditorOnly(bool bInFilterEditorOnly) { ArIsFilterEditorOnly = bInFilterEditorOnly; }
	void SetPortFlags(uint32 InPortFlags) { ArPortFlags = static_cast<int32>(InPortFlags); }
	void StartSerializingDefaults() { ++ArSerializingDefaults; }
	void StopSerializingDefaults() { --ArSerializingDefaults; }
	void ThisContainsCode() { ArContainsCode = true; }
	void ThisContainsMap() { ArContainsMap = true; }
	void ThisRequiresLocalizationGather() { ArRequiresLocalizationGather = true; }

	virtual void SetSerializedProperty(FProperty* InProperty) { SerializedProperty = InProperty; }
	FProperty* GetSerializedProperty() const { return SerializedProperty; }
	virtual void PushSerializedProperty(FProperty* InProperty, const bool bIsEditorOnlyProperty) { SerializedProperty = InProperty; }
	virtual void PopSerializedProperty(FProperty* InProperty, const bool bIsEditorOnlyProperty) { SerializedProperty = nullptr; }
	virtual void PushDebugDataString(const FName& DebugData) {}
	virtual void PopDebugDataString() {}
	virtual bool IsEditorOnlyPropertyOnTheStack() const { return false; }
	virtual bool ShouldSkipProperty(const FProperty* InProperty) const { return false; }
	virtual FUObjectSerializeContext* GetSerializeContext() { return nullptr; }
	virtual void SetSerializeContext(FUObjectSerializeContext* InLoadContext) {}

	/** Puts every flag, version and limit back to what a new archive has. */
	void Reset();

	uint8 ArIsLoading : 1;
	uint8 ArIsSaving : 1;
	uint8 ArIsTransacting : 1;
	uint8 ArIsTextFormat : 1;
	uint8 ArWantBinaryPropertySerialization : 1;
	uint8 ArForceUnicode : 1;
	uint8 ArIsPersistent : 1;
	uint8 ArIsError : 1;
	uint8 ArIsCriticalError : 1;
	uint8 ArContainsCode : 1;
	uint8 ArContainsMap : 1;
	uint8 ArRequiresLocalizationGather : 1;
	uint8 ArNoDelta : 1;
	uint8 ArNoIntraPropertyDelta : 1;
	uint8 ArIgnoreOuterRef : 1;
	uint8 ArIgnoreClassGeneratedByRef : 1;
	uint8 ArIgnoreClassRef : 1;
	uint8 ArIgnoreArchetypeRef : 1;
	uint8 ArAllowLazyLoading : 1;
	uint8 ArIsObjectReferenceCollector : 1;
	uint8 ArIsModifyingWeakAndStrongReferences : 1;
	uint8 ArIsCountingMemory : 1;
	uint8 ArShouldSkipBulkData : 1;
	uint8 ArIsFilterEditorOnly : 1;
	uint8 ArIsSaveGame : 1;
	uint8 ArIsNetArchive : 1;
	uint8 ArUseCustomPropertyList : 1;
	int32 ArSerializingDefaults;
	int32 ArPortFlags;
	int64 ArMaxSerializeSize;

protected:
	FPackageFileVersion ArUEVer;
	int32 ArLicenseeUEVer;
	/** Made when first asked for; see GetCustomVersions. */
	mutable FCustomVersionContainer* CustomVersionContainer = nullptr;

private:
	void CopyFrom(const FArchiveState& Other);

	FProperty* SerializedProperty = nullptr;
	mutable bool bCustomVersionsAreReset = true;

	friend class FArchive;
};

/**
 * Reads or writes binary data: the same `<<` serves both ways. Numbers are little-endian, bool is a uint32. A read past the
 * end sets the error state and gives zeros; callers check IsError() once, after reading. Not for use from two threads at once.
 */
class CORE_API FArchive : public FArchiveState
{
public:
	FArchive() = default;
	FArchive(const FArchive&) = default;
	FArchive& operator=(const FArchive&) = default;
	~FArchive() override = default;

	/** Reads or writes Length raw bytes. */
	virtual void Serialize(void* V, int64 Length) {}
	/** A number of 7 bits a byte, least significant first. */
	virtual void SerializeIntPacked(uint32& Value);
	virtual void Seek(int64 InPos) {}
	virtual void Flush() {}
	virtual bool Close() { return !ArIsError; }
	virtual void Preload(UObject* Object) {}
	virtual void CountBytes(SIZE_T InNum, SIZE_T InMax) {}
	virtual void MarkScriptSerializationStart(const UObject* Object) {}
	virtual void MarkScriptSerializationEnd(const UObject* Object) {}
	virtual bool IsProxyOf(FArchive* InOther) const { return InOther == this; }
	FArchive& ByteOrderSerialize(void* V, int32 Length)
	{
		Serialize(V, Length);
		return *this;
	}

	/** Records in a saved archive that data of this version is in it. Does nothing while loading. */
	virtual void UsingCustomVersion(const FGuid& Guid);

	/** Archives that give names, texts and objects a form override these; here they set the error state, except FText's. */
	virtual FArchive& operator<<(FName& Value);
	virtual FArchive& operator<<(FText& Value);
	virtual FArchive& operator<<(UObject*& Value);
	virtual FArchive& operator<<(FField*& Value);
	virtual FArchive& operator<<(FLazyObjectPtr& Value);
	virtual FArchive& operator<<(FObjectPtr& Value);
	virtual FArchive& operator<<(FSoftObjectPath& Value);
	virtual FArchive& operator<<(FSoftObjectPtr& Value);
	virtual FArchive& operator<<(FWeakObjectPtr& Value);

	/** True if Count elements of at least MinElementBytes each could still follow. If not, sets the error state. */
	bool CanHold(int64 Count, int64 MinElementBytes = 1);
};

template <typename T>
requires(std::is_arithmetic_v<T> && !std::is_same_v<T, bool> && !std::is_const_v<T>)
	FArchive&
	operator<<(FArchive& Ar, T& Value)
{
	Ar.Serialize(&Value, sizeof(T));
	return Ar;
}

CORE_API FArchive& operator<<(FArchive& Ar, bool& Value);

template <typename EnumType>
requires(std::is_enum_v<EnumType> && !std::is_const_v<EnumType>)
	FArchive&
	operator<<(FArchive& Ar, EnumType& Value)
{
	return Ar << reinterpret_cast<std::underlying_type_t<EnumType>&>(Value);
}

/** Any pointer to an object goes the way of UObject*. */
template <typename T>
requires(std::is_class_v<T> && !std::is_same_v<T, UObject> && std::is_convertible_v<T*, const volatile UObject*>)
	FArchive&
	operator<<(FArchive& Ar, T*& Value)
{
	return Ar << reinterpret_cast<UObject*&>(Value);
}
