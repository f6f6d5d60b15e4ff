#include "ToolMenus.h"
#include "UObject/GarbageCollection.h"
#include "UObject/UObjectGlobals.h"

#include <gtest/gtest.h>

namespace
{
const FName MenuName = TEXT("LevelEditor.MainMenu.Tools");

/** Menus, with entries that count how often they were executed. */
class ToolMenus : public testing::Test
{
protected:
	virtual void SetUp() override { ProcessNewlyLoadedUObjects(); }
	virtual void TearDown() override { UToolMenus::UnregisterOwner(this); }

	FToolMenuEntry& Add(const FName Name, FCanExecuteAction Condition = FCanExecuteAction())
	{
		const FUIAction Action(FExecuteAction::CreateLambda([this]
								   { ++NumExecuted; }),
			Condition);
		return UToolMenus::Get()
			->ExtendMenu(MenuName)
			->FindOrAddSection(TEXT("Section"), FText::FromString(TEXT("Heading")))
			.AddMenuEntry(Name, FText::FromString(TEXT("Label")), FText(), FSlateIcon(), Action);
	}

	static FToolMenuEntry* Find(const FName Name)
	{
		UToolMenu* const Menu = UToolMenus::Get()->FindMenu(MenuName);
		FToolMenuSection* const Section = Menu ? Menu->FindSection(TEXT("Section")) : nullptr;
		return Section ? Section->FindEntry(Name) : nullptr;
	}

	int32 NumExecuted = 0;
};
}

TEST_F(ToolMenus, AnEntryIsFoundByItsPlaceAndDoesWhatItIsFor)
{
	const FToolMenuOwnerScoped Owner(this);
	Add(TEXT("One"));
	Add(TEXT("Never"), FCanExecuteAction::CreateLambda([]
						   { return false; }));
	CollectGarbage(GARBAGE_COLLECTION_KEEPFLAGS);
	ASSERT_NE(Find(TEXT("One")), nullptr);
	EXPECT_TRUE(Find(TEXT("One"))->TryExecuteToolUIAction(FToolMenuContext()));
	EXPECT_FALSE(Find(TEXT("Never"))->TryExecuteToolUIAction(FToolMenuContext()));
	EXPECT_EQ(NumExecuted, 1);
	EXPECT_EQ(UToolMenus::Get()->FindMenu(MenuName)->FindSection(TEXT("Section"))->Label.Get().ToString(), FString(TEXT("Heading")));
	EXPECT_EQ(UToolMenus::Get()->FindMenu(TEXT("Nobody.Extended.It")), nullptr);
}

TEST_F(ToolMenus, AnEntryOfTheSameNameTakesTheOthersPlace)
{
	const FToolMenuOwnerScoped Owner(this);
	Add(TEXT("One"));
	Add(TEXT("Two"));
	Add(TEXT("One")).Label = FText::FromString(TEXT("Newer"));
	const FToolMenuSection* const Section = UToolMenus::Get()->FindMenu(MenuName)->FindSection(TEXT("Section"));
	ASSERT_EQ(Section->Blocks.Num(), 2);
	EXPECT_EQ(Section->Blocks[0].Label.Get().ToString(), FString(TEXT("Newer")));
}

TEST_F(ToolMenus, WhatAnOwnerAddedGoesWithItAndNothingElse)
{
	{
		const FToolMenuOwnerScoped Owner(this);
		Add(TEXT("Mine"));
		const FToolMenuOwnerScoped Other(FName(TEXT("Other")));
		Add(TEXT("Others"));
	}
	EXPECT_FALSE(UToolMenus::Get()->CurrentOwner().IsSet());
	UToolMenus::UnregisterOwner(this);
	EXPECT_EQ(Find(TEXT("Mine")), nullptr);
	EXPECT_NE(Find(TEXT("Others")), nullptr);
	UToolMenus::UnregisterOwner(FName(TEXT("Other")));
	EXPECT_EQ(Find(TEXT("Others")), nullptr);
}

TEST_F(ToolMenus, TheStartupCallbackComesAtOnce)
{
	int32 NumCalls = 0;
	UToolMenus::RegisterStartupCallback(FSimpleMulticastDelegate::FDelegate::CreateLambda([&]
		{ ++NumCalls; }));
	EXPECT_EQ(NumCalls, 1);
	UToolMenus::UnRegisterStartupCallback(this);
}
