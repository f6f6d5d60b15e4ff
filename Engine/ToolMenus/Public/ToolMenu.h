#pragma once

#include "ToolMenuSection.h"
#include "UObject/Object.h"
#include "UObject/ObjectMacros.h"

#include "ToolMenu.generated.h"

/** A menu, by the name of its place: "LevelEditor.MainMenu.Tools". */
UCLASS()
class TOOLMENUS_API UToolMenu : public UObject
{
	GENERATED_BODY()

public:
	FToolMenuSection& FindOrAddSection(const FName SectionName);
	/** The label is that of a section that is added, and of one that has none. */
	FToolMenuSection& FindOrAddSection(const FName SectionName, const TAttribute<FText>& InLabel);
	FToolMenuSection* FindSection(const FName SectionName);

	FName GetMenuName() const { return MenuName; }

	FName MenuName;
	TArray<FToolMenuSection> Sections;
};
