#pragma once

#include "CoreMinimal.h"

struct FProjectDescriptor;

/** Knows the project that is open. */
class PROJECTS_API IProjectManager
{
public:
	virtual ~IProjectManager() = default;

	static IProjectManager& Get();

	/** The open project's descriptor; null without one. */
	virtual const FProjectDescriptor* GetCurrentProject() const = 0;

	/** Makes a project the current one; false, with the reason in the log and the earlier project kept, for a broken file. */
	virtual bool LoadProjectFile(const FString& ProjectFile) = 0;
};
