#include "VexelUserSettings.h"

UVexelUserSettings::UVexelUserSettings()
{
	CategoryName = TEXT("Plugins");
	SectionName = TEXT("Vexel");
}

FName UVexelUserSettings::GetContainerName() const
{
	return TEXT("Editor");
}
