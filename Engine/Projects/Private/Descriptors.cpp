#include "Descriptors.h"

#include "HAL/FileManager.h"
#include "Misc/FileHelper.h"
#include "Serialization/JsonReader.h"
#include "Serialization/JsonSerializer.h"

namespace
{
/** A descriptor is written by people and tools; a larger file is something else. */
constexpr int64 MaxDescriptorBytes = 4 << 20;

TSharedPtr<FJsonObject> LoadObject(const FString& FileName, const TCHAR* Kind, FText& OutFailReason)
{
	using Descriptors::Fail;
	FString Text;
	if (IFileManager::Get().FileSize(*FileName) > MaxDescriptorBytes)
	{
		Fail(OutFailReason, FString::Printf(TEXT("'%s' is too large for a %s file"), *FileName, Kind));
		return nullptr;
	}
	if (!FFileHelper::LoadFileToString(Text, *FileName))
	{
		Fail(OutFailReason, FString::Printf(TEXT("'%s' cannot be read"), *FileName));
		return nullptr;
	}
	TSharedPtr<FJsonObject> Object;
	const TSharedRef<TJsonReader<>> Reader = TJsonReaderFactory<>::Create(MoveTemp(Text));
	if (!FJsonSerializer::Deserialize(Reader, Object) || !Object)
	{
		Fail(OutFailReason, FString::Printf(TEXT("'%s' is not a %s file: %s"), *FileName, Kind, *Reader->GetErrorMessage()));
		return nullptr;
	}
	return Object;
}
}

bool Descriptors::Fail(FText& OutFailReason, const FString& Reason)
{
	OutFailReason = FText::FromString(Reason);
	return false;
}

bool Descriptors::LoadFile(
	const FString& FileName, const TCHAR* Kind, FText& OutFailReason, TFunctionRef<bool(const FJsonObject&, FText&)> Read)
{
	FText Reason;
	const TSharedPtr<FJsonObject> Object = LoadObject(FileName, Kind, OutFailReason);
	return Object &&
		(Read(*Object, Reason) ||
			Fail(OutFailReason, FString::Printf(TEXT("'%s' is not a %s file that can be opened: %s"), *FileName, Kind, *Reason.ToString())));
}

bool Descriptors::ReadVersion(const FJsonObject& Object, int32 Latest, int32& OutVersion, FText& OutFailReason)
{
	if (!Object.TryGetNumberField(TEXT("FileVersion"), OutVersion) || OutVersion <= 0)
	{
		return Fail(OutFailReason, TEXT("it has no valid 'FileVersion'"));
	}
	if (OutVersion > Latest)
	{
		return Fail(
			OutFailReason, FString::Printf(TEXT("its 'FileVersion' is %d, and only versions up to %d are known"), OutVersion, Latest));
	}
	return true;
}
