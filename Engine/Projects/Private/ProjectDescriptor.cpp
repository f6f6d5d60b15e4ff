#include "ProjectDescriptor.h"

#include "Descriptors.h"

bool FPluginReferenceDescriptor::Read(const FJsonObject& Object, FText& OutFailReason)
{
	if (!Object.TryGetStringField(TEXT("Name"), Name) || Name.IsEmpty())
	{
		return Descriptors::Fail(OutFailReason, TEXT("it has no 'Name'"));
	}
	if (!Object.TryGetBoolField(TEXT("Enabled"), bEnabled))
	{
		return Descriptors::Fail(OutFailReason, FString::Printf(TEXT("plug-in '%s' has no 'Enabled'"), *Name));
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
	return Descriptors::LoadFile(FileName, TEXT("project"), OutFailReason, [this](const FJsonObject& Object, FText& Reason)
		{ return Read(Object, Reason); });
}

bool FProjectDescriptor::Read(const FJsonObject& Object, FText& OutFailReason)
{
	int32 Version = EProjectDescriptorVersion::Invalid;
	if (!Descriptors::ReadVersion(Object, EProjectDescriptorVersion::Latest, Version, OutFailReason))
	{
		return false;
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
