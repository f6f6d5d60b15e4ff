#pragma once

#include "Delegates/Delegate.h"
#include "UObject/Object.h"
#include "UObject/ObjectMacros.h"

#include "DeveloperSettings.generated.h"

struct FPropertyChangedEvent;

/** A class of settings: its default object holds the values, read from its .ini, and the editor shows them as a section. */
UCLASS(Abstract)
class ENGINE_API UDeveloperSettings : public UObject
{
	GENERATED_BODY()

public:
	/** "Project" or "Editor". */
	virtual FName GetContainerName() const;
	/** The category within the container: the config file's name, unless CategoryName says another. */
	virtual FName GetCategoryName() const;
	/** The section within the category: the class's name, unless SectionName says another. */
	virtual FName GetSectionName() const;

	DECLARE_EVENT_TwoParams(UDeveloperSettings, FOnSettingsChanged, UObject*, FPropertyChangedEvent&);
	/** Broadcast when a value of the object was edited. */
	FOnSettingsChanged& OnSettingChanged() { return SettingsChangedDelegate; }

	virtual void PostEditChangeProperty(FPropertyChangedEvent& PropertyChangedEvent) override;

protected:
	FName CategoryName;
	FName SectionName;

private:
	FOnSettingsChanged SettingsChangedDelegate;
};
