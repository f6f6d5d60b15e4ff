#include "Containers/Ticker.h"
#include "Framework/Notifications/NotificationManager.h"
#include "LogCapture.h"

#include <gtest/gtest.h>

namespace
{
class FNotificationTest : public testing::Test
{
protected:
	static FSlateNotificationManager& Manager() { return FSlateNotificationManager::Get(); }
	static void Advance(float Seconds) { FTSTicker::GetCoreTicker().Tick(Seconds); }
	static FText Text(const TCHAR* String) { return FText::FromString(String); }
};

TEST_F(FNotificationTest, OneThatIsFiredAndForgottenGoesByItself)
{
	FLogCapture Log;
	FNotificationInfo Info(Text(TEXT("Saved")));
	Info.ExpireDuration = 1.0f;
	Info.FadeOutDuration = 0.5f;
	Manager().AddNotification(Info);
	EXPECT_TRUE(Log.Contains("Saved"));
	Advance(1.25f);
	ASSERT_EQ(Manager().GetShownNotifications().Num(), 1);
	Advance(0.5f);
	EXPECT_EQ(Manager().GetShownNotifications().Num(), 0);
}

TEST_F(FNotificationTest, OneThatIsHeldStaysUntilItIsEndedAndShowsWhatItIsTold)
{
	int32 Done = 0;
	FNotificationInfo Info(Text(TEXT("Indexing")));
	Info.bFireAndForget = false;
	Info.FadeOutDuration = 0.5f;
	Info.SubText = TAttribute<FText>::CreateLambda([&Done]
		{ return FText::AsNumber(Done); });
	const TSharedPtr<SNotificationItem> Item = Manager().AddNotification(Info);
	Item->SetCompletionState(SNotificationItem::CS_Pending);
	Advance(100.0f);
	Done = 7;
	ASSERT_EQ(Manager().GetShownNotifications().Num(), 1);
	EXPECT_EQ(Manager().GetShownNotifications()[0].SubText.ToString(), TEXT("7"));
	EXPECT_EQ(Manager().GetShownNotifications()[0].State, SNotificationItem::CS_Pending);
	Item->SetText(Text(TEXT("Indexed")));
	Item->SetCompletionState(SNotificationItem::CS_Success);
	EXPECT_EQ(Manager().GetShownNotifications()[0].Text.ToString(), TEXT("Indexed"));
	Item->Fadeout();
	Advance(1.0f);
	EXPECT_EQ(Manager().GetShownNotifications().Num(), 0);
	Item->SetText(Text(TEXT("Late")));
}

TEST_F(FNotificationTest, ButtonsAreThereInTheirStateAlone)
{
	int32 Presses = 0;
	FNotificationInfo Info(Text(TEXT("New version")));
	Info.bFireAndForget = false;
	Info.FadeOutDuration = 0.0f;
	Info.ButtonDetails.Add(FNotificationButtonInfo(
		Text(TEXT("Download")), FText::GetEmpty(), FSimpleDelegate::CreateLambda([&Presses]
													   { ++Presses; }),
		SNotificationItem::CS_None));
	const TSharedPtr<SNotificationItem> Item = Manager().AddNotification(Info);
	EXPECT_FALSE(Manager().PressButton(TEXT("New version"), TEXT("Upload")));
	EXPECT_TRUE(Manager().PressButton(TEXT("New version"), TEXT("Download")));
	EXPECT_EQ(Presses, 1);
	Item->SetCompletionState(SNotificationItem::CS_Success);
	EXPECT_FALSE(Manager().PressButton(TEXT("New version"), TEXT("Download")));
	Item->Fadeout();
	Advance(0.1f);
}
}
