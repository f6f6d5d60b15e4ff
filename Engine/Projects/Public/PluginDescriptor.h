#pragma once

#include "CoreMinimal.h"
#include "ModuleDescriptor.h"
#include "PluginReferenceDescriptor.h"

class FJsonObject;

namespace EPluginDescriptorVersion
{
enum Type : int
{
	Invalid = 0,
	Initial = 1,
	NameHash = 2,
	ProjectPluginUnification = 3,
	LatestPlusOne,
	Latest = LatestPlusOne - 1
};
}

/** Whether a plug-in is on when the project says nothing of it. */
enum class EPluginEnabledByDefault : uint8
{
	Unspecified,
	Enabled,
	Disabled
};

/** What a .uplugin file says. */
struct PROJECTS_API FPluginDescriptor
{
	int32 Version = 0;
	FString VersionName;
	FString FriendlyName;
	FString Description;
	FString Category;
	FString CreatedBy;
	FString EngineVersion;
	TArray<FModuleDescriptor> Modules;
	/** Other plug-ins that this one needs. */
	TArray<FPluginReferenceDescriptor> Plugins;
	EPluginEnabledByDefault EnabledByDefault = EPluginEnabledByDefault::Unspecified;
	bool bCanContainContent = false;

	/** False, with one line that says what is wrong and where, for a file that is not a plug-in of a version known here. */
	bool Load(const FString& FileName, FText* OutFailReason = nullptr);
	bool Read(const FJsonObject& Object, FText* OutFailReason = nullptr);
};
