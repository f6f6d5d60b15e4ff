#include "Framework/Notifications/NotificationManager.h"

#include "Containers/Ticker.h"

DEFINE_LOG_CATEGORY_STATIC(LogNotifications, Log, All);

/** A notification of the headless host. It is alive in the manager's list until it has gone. */
class FNotificationItem final : public SNotificationItem, public TSharedFromThis<FNotificationItem>
{
public:
	explicit FNotificationItem(const FNotificationInfo& InInfo)
		: Info(InInfo)
	{
	}

	void Show()
	{
		Write();
		if (Info.bFireAndForget)
		{
			ExpireAndFadeout();
		}
	}

	virtual void SetText(const TAttribute<FText>& InText) override
	{
		Info.Text = InText;
		Write();
	}
	virtual void SetSubText(const TAttribute<FText>& InSubText) override { Info.SubText = InSubText; }
	virtual void SetHyperlink(const FSimpleDelegate& InHyperlink, const TAttribute<FText>& InHyperlinkText) override
	{
		Info.Hyperlink = InHyperlink;
		if (InHyperlinkText.IsSet())
		{
			Info.HyperlinkText = InHyperlinkText;
		}
	}
	virtual ECompletionState GetCompletionState() const override { return State; }
	virtual void SetCompletionState(ECompletionState InState) override { State = InState; }
	virtual void SetExpireDuration(float ExpireDuration) override { Info.ExpireDuration = ExpireDuration; }
	virtual void SetFadeOutDuration(float FadeOutDuration) override { Info.FadeOutDuration = FadeOutDuration; }
	virtual void ExpireAndFadeout() override { GoAfter(Info.ExpireDuration + Info.FadeOutDuration); }
	virtual void Fadeout() override { GoAfter(Info.FadeOutDuration); }
	virtual void Pulse(const FLinearColor& GlowColor) override {}

	FShownNotification Describe() const
	{
		FShownNotification Shown;
		Shown.Text = Info.Text.Get();
		Shown.SubText = Info.SubText.Get();
		Shown.State = State;
		for (const FNotificationButtonInfo& Button : Info.ButtonDetails)
		{
			if (Button.VisibilityState == State)
			{
				Shown.Buttons.Add(Button.Text);
			}
		}
		return Shown;
	}

	FSimpleDelegate FindButton(const FString& Text) const
	{
		const FNotificationButtonInfo* const Found = Info.ButtonDetails.FindByPredicate([this, &Text](const FNotificationButtonInfo& Button)
			{ return Button.VisibilityState == State && Button.Text.ToString() == Text; });
		return Found ? Found->Callback : FSimpleDelegate();
	}

private:
	void Write() const { UE_LOG(LogNotifications, Log, TEXT("%s"), *Info.Text.Get().ToString()); }

	void GoAfter(float Seconds)
	{
		// A later call replaces an earlier one.
		FTSTicker::GetCoreTicker().RemoveTicker(Going);
		Going = FTSTicker::GetCoreTicker().AddTicker(FTickerDelegate::CreateSPLambda(this,
														 [this](float)
														 {
															 const TSharedRef<FNotificationItem> This = AsShared();
															 FSlateNotificationManager::Get().Items.Remove(This);
															 return false;
														 }),
			Seconds);
	}

	FNotificationInfo Info;
	ECompletionState State = CS_None;
	FTSTicker::FDelegateHandle Going;
};

FSlateNotificationManager& FSlateNotificationManager::Get()
{
	static FSlateNotificationManager Manager;
	return Manager;
}

TSharedPtr<SNotificationItem> FSlateNotificationManager::AddNotification(const FNotificationInfo& Info)
{
	const TSharedRef<FNotificationItem> Item = MakeShared<FNotificationItem>(Info);
	Items.Add(Item);
	Item->Show();
	return Item;
}

TArray<FShownNotification> FSlateNotificationManager::GetShownNotifications() const
{
	TArray<FShownNotification> Shown;
	for (const TSharedRef<FNotificationItem>& Item : Items)
	{
		Shown.Add(Item->Describe());
	}
	return Shown;
}

bool FSlateNotificationManager::PressButton(const FString& NotificationText, const FString& ButtonText)
{
	for (const TSharedRef<FNotificationItem>& Item : Items)
	{
		const FSimpleDelegate Callback =
			Item->Describe().Text.ToString() == NotificationText ? Item->FindButton(ButtonText) : FSimpleDelegate();
		if (Callback.IsBound())
		{
			Callback.Execute();
			return true;
		}
	}
	return false;
}
