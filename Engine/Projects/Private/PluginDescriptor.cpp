#include "PluginDescriptor.h"

#include "Descriptors.h"

bool FPluginDescriptor::Load(const FString& FileName, FText* OutFailReason)
{
	FText Reason;
	return Descriptors::LoadFile(FileName, TEXT("plug-in"), OutFailReason ? *OutFailReason : Reason,
		[this](const FJsonObject& Object, FText& ReadReason)
		{ return Read(Object, &ReadReason); });
}

bool FPluginDescriptor::Read(const FJsonObject& Object, FText* OutFailReason)
{
	FText Reason;
	FText& FailReason = OutFailReason ? *OutFailReason : Reason;
	int32 FileVersion = EPluginDescriptorVersion::Invalid;
	if (!Descriptors::ReadVersion(Object, EPluginDescriptorVersion::Latest, FileVersion, FailReason))
	{
		return false;
	}
	Object.TryGetNumberField(TEXT("Version"), Version);
	Object.TryGetStringField(TEXT("VersionName"), VersionName);
	Object.TryGetStringField(TEXT("FriendlyName"), FriendlyName);
	Object.TryGetStringField(TEXT("Description"), Description);
	Object.TryGetStringField(TEXT("Category"), Category);
	Object.TryGetStringField(TEXT("CreatedBy"), CreatedBy);
	Object.TryGetStringField(TEXT("EngineVersion"), EngineVersion);
	Object.TryGetBoolField(TEXT("CanContainContent"), bCanContainContent);
	if (bool bEnabled = false; Object.TryGetBoolField(TEXT("EnabledByDefault"), bEnabled))
	{
		EnabledByDefault = bEnabled ? EPluginEnabledByDefault::Enabled : EPluginEnabledByDefault::Disabled;
	}
	return FModuleDescriptor::ReadArray(Object, TEXT("Modules"), Modules, FailReason) &&
		FPluginReferenceDescriptor::ReadArray(Object, TEXT("Plugins"), Plugins, FailReason);
}
