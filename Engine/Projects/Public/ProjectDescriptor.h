#pragma once

#include "CoreMinimal.h"
#include "ModuleDescriptor.h"
#include "PluginReferenceDescriptor.h"

namespace EProjectDescriptorVersion
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

/** What a .uproject file says. */
struct PROJECTS_API FProjectDescriptor
{
	EProjectDescriptorVersion::Type FileVersion = EProjectDescriptorVersion::Latest;
	/** The engine that the project is opened with: a version, or the id of a build. */
	FString EngineAssociation;
	FString Category;
	FString Description;
	TArray<FModuleDescriptor> Modules;
	TArray<FPluginReferenceDescriptor> Plugins;
	TArray<FName> TargetPlatforms;
	bool bIsEnterpriseProject = false;
	bool bDisableEnginePluginsByDefault = false;

	/** False, with one line that says what is wrong and where, for a file that is not a project of a version known here. */
	bool Load(const FString& FileName, FText& OutFailReason);
	bool Read(const FJsonObject& Object, FText& OutFailReason);
};
