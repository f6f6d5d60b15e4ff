#include "ProjectDescriptor.h"

#include "Descriptors.h"
#include "HAL/FileManager.h"
#include "Misc/FileHelper.h"
#include "Serialization/JsonReader.h"
#include "Serialization/JsonSerializer.h"

namespace
{
/** A descriptor is written by people and tools; a larger file is something else. */
constexpr int64 MaxDescriptorBytes = 4 << 20;

bool Fail(FText& OutFailReason, const FString& Reason)
{
	OutFailReason = FText::FromString(Reason);
	return false;
}
}

bool FPluginReferenceDescriptor::Read(const FJsonObject& Object, FText& OutFailReason)
{
	if (!Object.TryGetStringField(TEXT("Name"), Name) || Name.IsEmpty())
	{
		return Fail(OutFailReason, TEXT("it has no 'Name'"));
	}
	if (!Object.TryGetBoolField(TEXT("Enabled"), bEnabled))
	{
		return Fail(OutFailReason, FString::Printf(TEXT("plug-in '%s' has no 'Enabled'"), *Name));
	}
	Object.TryGetBoolField(TEXT("Optional"), bOptional);
	Object.TryGetStringField(TEXT("Description"), Description);
	Object.TryGetStringField(TEXT("MarketplaceURL"), MarketplaceURL);
	return true;
}

bool FPluginReferenceDescriptor::ReadArray(
	const FJsonObject& Object, const TCHAR* Name, TArray<FPluginReferenceDescriptor>& OutPlugins, FText& OutFailReason)
{
	return Descriptors::ReadArray(Object, Name, OutPlugins, OutFailReason);
}

bool FProjectDescriptor::Load(const FString& FileName, FText& OutFailReason)
{
	FString Text;
	if (IFileManager::Get().FileSize(*FileName) > MaxDescriptorBytes)
	{
		return Fail(OutFailReason, FString::Printf(TEXT("'%s' is too large for a project file"), *FileName));
	}
	if (!FFileHelper::LoadFileToString(Text, *FileName))
	{
		return Fail(OutFailReason, FString::Printf(TEXT("'%s' cannot be read"), *FileName));
	}
	TSharedPtr<FJsonObject> Object;
	const TSharedRef<TJsonReader<>> Reader = TJsonReaderFactory<>::Create(MoveTemp(Text));
	if (!FJsonSerializer::Deserialize(Reader, Object) || !Object)
	{
		return Fail(OutFailReason, FString::Printf(TEXT("'%s' is not a project file: %s"), *FileName, *Reader->GetErrorMessage()));
	}
	FText Reason;
	if (!Read(*Object, Reason))
	{
		return Fail(OutFailReason, FString::Printf(TEXT("'%s' is not a project file that can be opened: %s"), *FileName, *Reason.ToString()));
	}
	return true;
}

bool FProjectDescriptor::Read(const FJsonObject& Object, FText& OutFailReason)
{
	int32 Version = EProjectDescriptorVersion::Invalid;
	if (!Object.TryGetNumberField(TEXT("FileVersion"), Version) || Version <= EProjectDescriptorVersion::Invalid)
	{
		return Fail(OutFailReason, TEXT("it has no valid 'FileVersion'"));
	}
	if (Version > EProjectDescriptorVersion::Latest)
	{
		return Fail(OutFailReason,
			FString::Printf(TEXT("its 'FileVersion' is %d, and only versions up to %d are known"), Version, int32(EProjectDescriptorVersion::Latest)));
	}
	FileVersion = EProjectDescriptorVersion::Type(Version);
	Object.TryGetStringField(TEXT("EngineAssociation"), EngineAssociation);
	Object.TryGetStringField(TEXT("Category"), Category);
	Object.TryGetStringField(TEXT("Description"), Description);
	Object.TryGetBoolField(TEXT("Enterprise"), bIsEnterpriseProject);
	Object.TryGetBoolField(TEXT("DisableEnginePluginsByDefault"), bDisableEnginePluginsByDefault);
	TArray<FString> Platforms;
	Object.TryGetStringArrayField(TEXT("TargetPlatforms"), Platforms);
	for (const FString& Platform : Platforms)
	{
		TargetPlatforms.Add(FName(*Platform.Left(NAME_SIZE - 1)));
	}
	return FModuleDescriptor::ReadArray(Object, TEXT("Modules"), Modules, OutFailReason) &&
		FPluginReferenceDescriptor::ReadArray(Object, TEXT("Plugins"), Plugins, OutFailReason);
}
