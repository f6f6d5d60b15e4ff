#pragma once

#include "CoreMinimal.h"
#include "Delegates/Delegate.h"
#include "Misc/Attribute.h"
#include "Templates/SharedPointer.h"

/** A message that is shown to the user for a time. */
class SNotificationItem
{
public:
	enum ECompletionState
	{
		CS_None,
		CS_Pending,
		CS_Success,
		CS_Fail,
	};

	virtual ~SNotificationItem() = default;

	virtual void SetText(const TAttribute<FText>& InText) = 0;
	virtual void SetSubText(const TAttribute<FText>& InSubText) = 0;
	/** Empty text keeps the one that was set with the notification. */
	virtual void SetHyperlink(const FSimpleDelegate& InHyperlink, const TAttribute<FText>& InHyperlinkText = TAttribute<FText>()) = 0;
	virtual ECompletionState GetCompletionState() const = 0;
	virtual void SetCompletionState(ECompletionState State) = 0;
	/** Seconds until it begins to go, counted from ExpireAndFadeout. */
	virtual void SetExpireDuration(float ExpireDuration) = 0;
	/** Seconds that it takes to go. */
	virtual void SetFadeOutDuration(float FadeOutDuration) = 0;
	virtual void ExpireAndFadeout() = 0;
	virtual void Fadeout() = 0;
	/** Draws the user's eye to it. */
	virtual void Pulse(const FLinearColor& GlowColor = FLinearColor(1.0f, 1.0f, 1.0f)) = 0;
};

/** A button of a notification, shown while the notification is in the state. */
struct FNotificationButtonInfo
{
	FNotificationButtonInfo(const FText& InText, const FText& InToolTip, const FSimpleDelegate& InCallback,
		SNotificationItem::ECompletionState InVisibilityOnState = SNotificationItem::CS_Pending)
		: Text(InText)
		, ToolTip(InToolTip)
		, Callback(InCallback)
		, VisibilityState(InVisibilityOnState)
	{
	}

	FText Text;
	FText ToolTip;
	FSimpleDelegate Callback;
	SNotificationItem::ECompletionState VisibilityState;
};

/** What a notification says and how long it stays. */
struct FNotificationInfo
{
	explicit FNotificationInfo(const FText& InText)
		: Text(InText)
	{
	}

	TAttribute<FText> Text;
	TAttribute<FText> SubText;
	TArray<FNotificationButtonInfo> ButtonDetails;
	FSimpleDelegate Hyperlink;
	TAttribute<FText> HyperlinkText;
	float FadeInDuration = 0.5f;
	float FadeOutDuration = 2.0f;
	/** Seconds, from when it is shown with bFireAndForget, else from ExpireAndFadeout. */
	float ExpireDuration = 1.0f;
	bool bUseThrobber = true;
	bool bUseSuccessFailIcons = true;
	bool bUseLargeFont = true;
	/** Goes by itself. Without it the holder of the item ends it. */
	bool bFireAndForget = true;
};
