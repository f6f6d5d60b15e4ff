#include "Engine/DeveloperSettings.h"

#include "UObject/Class.h"

FName UDeveloperSettings::GetContainerName() const
{
	static const FName ProjectName = TEXT("Project");
	static const FName EditorName = TEXT("Editor");
	return GetClass()->GetConfigName().Contains(TEXT("Editor")) ? EditorName : ProjectName;
}

FName UDeveloperSettings::GetCategoryName() const
{
	return CategoryName.IsNone() ? FName(*GetClass()->GetConfigName()) : CategoryName;
}

FName UDeveloperSettings::GetSectionName() const
{
	return SectionName.IsNone() ? GetClass()->GetFName() : SectionName;
}

void UDeveloperSettings::PostEditChangeProperty(FPropertyChangedEvent& PropertyChangedEvent)
{
	UObject::PostEditChangeProperty(PropertyChangedEvent);
	SettingsChangedDelegate.Broadcast(this, PropertyChangedEvent);
}
