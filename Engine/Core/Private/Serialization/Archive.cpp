#include "Serialization/Archive.h"

#include "Containers/UnrealString.h"
#include "Internationalization/Text.h"
#include "Serialization/ArchiveProxy.h"
#include "Serialization/ArraySerialization.h"
#include "Serialization/CustomVersion.h"
#include "Serialization/NameAsStringProxyArchive.h"
#include "UObject/NameTypes.h"

FArchiveState::FArchiveState()
{
	Reset();
}

FArchiveState::FArchiveState(const FArchiveState& Other)
{
	CopyFrom(Other);
}

FArchiveState& FArchiveState::operator=(const FArchiveState& Other)
{
	if (this != &Other)
	{
		CopyFrom(Other);
	}
	return *this;
}

FArchiveState::~FArchiveState()
{
	delete CustomVersionContainer;
}

void FArchiveState::CopyFrom(const FArchiveState& Other)
{
	ArIsLoading = Other.ArIsLoading;
	ArIsSaving = Other.ArIsSaving;
	ArIsTransacting = Other.ArIsTransacting;
	ArIsTextFormat = Other.ArIsTextFormat;
	ArWantBinaryPropertySerialization = Other.ArWantBinaryPropertySerialization;
	ArForceUnicode = Other.ArForceUnicode;
	ArIsPersistent = Other.ArIsPersistent;
	ArIsError = Other.ArIsError;
	ArIsCriticalError = Other.ArIsCriticalError;
	ArContainsCode = Other.ArContainsCode;
	ArContainsMap = Other.ArContainsMap;
	ArRequiresLocalizationGather = Other.ArRequiresLocalizationGather;
	ArNoDelta = Other.ArNoDelta;
	ArNoIntraPropertyDelta = Other.ArNoIntraPropertyDelta;
	ArIgnoreOuterRef = Other.ArIgnoreOuterRef;
	ArIgnoreClassGeneratedByRef = Other.ArIgnoreClassGeneratedByRef;
	ArIgnoreClassRef = Other.ArIgnoreClassRef;
	ArIgnoreArchetypeRef = Other.ArIgnoreArchetypeRef;
	ArAllowLazyLoading = Other.ArAllowLazyLoading;
	ArIsObjectReferenceCollector = Other.ArIsObjectReferenceCollector;
	ArIsModifyingWeakAndStrongReferences = Other.ArIsModifyingWeakAndStrongReferences;
	ArIsCountingMemory = Other.ArIsCountingMemory;
	ArShouldSkipBulkData = Other.ArShouldSkipBulkData;
	ArIsFilterEditorOnly = Other.ArIsFilterEditorOnly;
	ArIsSaveGame = Other.ArIsSaveGame;
	ArIsNetArchive = Other.ArIsNetArchive;
	ArUseCustomPropertyList = Other.ArUseCustomPropertyList;
	ArSerializingDefaults = Other.ArSerializingDefaults;
	ArPortFlags = Other.ArPortFlags;
	ArMaxSerializeSize = Other.ArMaxSerializeSize;
	ArUEVer = Other.ArUEVer;
	ArLicenseeUEVer = Other.ArLicenseeUEVer;
	SerializedProperty = Other.SerializedProperty;
	bCustomVersionsAreReset = Other.bCustomVersionsAreReset;
	FCustomVersionContainer* const Copied = Other.CustomVersionContainer != nullptr
		? new FCustomVersionContainer(*Other.CustomVersionContainer)
		: nullptr;
	delete CustomVersionContainer;
	CustomVersionContainer = Copied;
}

void FArchiveState::Reset()
{
	ArIsLoading = false;
	ArIsSaving = false;
	ArIsTransacting = false;
	ArIsTextFormat = false;
	ArWantBinaryPropertySerialization = false;
	ArForceUnicode = false;
	ArIsPersistent = false;
	ArIsError = false;
	ArIsCriticalError = false;
	ArContainsCode = false;
	ArContainsMap = false;
	ArRequiresLocalizationGather = false;
	ArNoDelta = false;
	ArNoIntraPropertyDelta = false;
	ArIgnoreOuterRef = false;
	ArIgnoreClassGeneratedByRef = false;
	ArIgnoreClassRef = false;
	ArIgnoreArchetypeRef = false;
	ArAllowLazyLoading = false;
	ArIsObjectReferenceCollector = false;
	ArIsModifyingWeakAndStrongReferences = false;
	ArIsCountingMemory = false;
	ArShouldSkipBulkData = false;
	ArIsFilterEditorOnly = false;
	ArIsSaveGame = false;
	ArIsNetArchive = false;
	ArUseCustomPropertyList = false;
	ArSerializingDefaults = 0;
	ArPortFlags = 0;
	ArMaxSerializeSize = 0;
	ArUEVer = GPackageFileUEVersion;
	ArLicenseeUEVer = GPackageFileLicenseeUEVersion;
	SerializedProperty = nullptr;
	delete CustomVersionContainer;
	CustomVersionContainer = nullptr;
	bCustomVersionsAreReset = true;
}

FString FArchiveState::GetArchiveName() const
{
	return TEXT("FArchive");
}

bool FArchiveState::AtEnd()
{
	const int64 Position = Tell();
	return Position != INDEX_NONE && Position >= TotalSize();
}

int32 FArchiveState::CustomVer(const FGuid& Key) const
{
	const FCustomVersion* const Version = GetCustomVersions().GetVersion(Key);
	return Version != nullptr ? Version->Version : -1;
}

const FCustomVersionContainer& FArchiveState::GetCustomVersions() const
{
	if (CustomVersionContainer == nullptr)
	{
		CustomVersionContainer = new FCustomVersionContainer;
	}
	if (bCustomVersionsAreReset)
	{
		bCustomVersionsAreReset = false;
		if (ArIsLoading)
		{
			*CustomVersionContainer = FCurrentCustomVersions::GetAll();
		}
		else
		{
			CustomVersionContainer->Empty();
		}
	}
	return *CustomVersionContainer;
}

void FArchiveState::SetCustomVersions(const FCustomVersionContainer& NewVersions)
{
	FCustomVersionContainer* const Copied = new FCustomVersionContainer(NewVersions);
	delete CustomVersionContainer;
	CustomVersionContainer = Copied;
	bCustomVersionsAreReset = false;
}

void FArchiveState::ResetCustomVersions()
{
	bCustomVersionsAreReset = true;
}

void FArchiveState::SetCustomVersion(const FGuid& Key, int32 Version, const FName& FriendlyName)
{
	const_cast<FCustomVersionContainer&>(GetCustomVersions()).SetVersion(Key, Version, FriendlyName);
}

void FArchive::UsingCustomVersion(const FGuid& Guid)
{
	if (!IsLoading())
	{
		const_cast<FCustomVersionContainer&>(GetCustomVersions()).SetVersionUsingRegistry(Guid);
	}
}

void FArchive::SerializeIntPacked(uint32& Value)
{
	constexpr uint8 MoreFollows = 1;
	if (IsLoading())
	{
		uint64 Result = 0;
		for (int32 Shift = 0; Shift < 35; Shift += 7)
		{
			uint8 Byte = 0;
			*this << Byte;
			Result |= static_cast<uint64>(Byte >> 1) << Shift;
			if ((Byte & MoreFollows) == 0)
			{
				Value = static_cast<uint32>(Result);
				return;
			}
		}
		Value = 0;
		SetError();
		return;
	}
	for (uint32 Rest = Value;;)
	{
		uint8 Byte = static_cast<uint8>((Rest & 0x7f) << 1);
		Rest >>= 7;
		Byte |= Rest != 0 ? MoreFollows : 0;
		*this << Byte;
		if (Rest == 0)
		{
			return;
		}
	}
}

bool FArchive::CanHold(int64 Count, int64 MinElementBytes)
{
	const int64 Size = TotalSize();
	const int64 Position = Tell();
	const bool bIsOverLimit = ArMaxSerializeSize > 0 && Count > ArMaxSerializeSize;
	const bool bIsOverRest =
		Size != INDEX_NONE && Position != INDEX_NONE && Count > (Position < Size ? Size - Position : 0) / MinElementBytes;
	if (Count < 0 || bIsOverLimit || bIsOverRest)
	{
		SetError();
		return false;
	}
	return true;
}

// Base archives have no form for these; an archive class that meets them overrides the operator.
FArchive& FArchive::operator<<(FName& Value)
{
	SetError();
	return *this;
}

FArchive& FArchive::operator<<(FText& Value)
{
	FText::SerializeText(*this, Value);
	return *this;
}

FArchive& FArchive::operator<<(UObject*& Value)
{
	SetError();
	return *this;
}

FArchive& FArchive::operator<<(FField*& Value)
{
	SetError();
	return *this;
}

FArchive& FArchive::operator<<(FLazyObjectPtr& Value)
{
	SetError();
	return *this;
}

FArchive& FArchive::operator<<(FObjectPtr& Value)
{
	SetError();
	return *this;
}

FArchive& FArchive::operator<<(FSoftObjectPath& Value)
{
	SetError();
	return *this;
}

FArchive& FArchive::operator<<(FSoftObjectPtr& Value)
{
	SetError();
	return *this;
}

FArchive& FArchive::operator<<(FWeakObjectPtr& Value)
{
	SetError();
	return *this;
}

FArchive& operator<<(FArchive& Ar, bool& Value)
{
	uint32 Number = Value ? 1 : 0;
	Ar.Serialize(&Number, sizeof(Number));
	if (Number > 1)
	{
		Ar.SetError();
	}
	Value = Number != 0;
	return Ar;
}

FArchive& operator<<(FArchive& Ar, FPackageFileVersion& Version)
{
	return Ar << Version.FileVersionUE4 << Version.FileVersionUE5;
}

int32 SerializeContainerNum(FArchive& Ar, int32 Num, int64 MinElementBytes)
{
	Ar << Num;
	if (Ar.IsLoading() && (Ar.IsError() || !Ar.CanHold(Num, MinElementBytes)))
	{
		return 0;
	}
	return Num;
}

FArchiveProxy::FArchiveProxy(FArchive& InInnerArchive)
	: FArchive(InInnerArchive)
	, InnerArchive(InInnerArchive)
{
}

FString FArchiveProxy::GetArchiveName() const
{
	return InnerArchive.GetArchiveName();
}

FArchive& FNameAsStringProxyArchive::operator<<(FName& Name)
{
	FString Text;
	if (!IsLoading())
	{
		Text = Name.ToString();
	}
	InnerArchive << Text;
	TakeOverError();
	if (IsLoading())
	{
		Name = FName(*Text);
	}
	return *this;
}
