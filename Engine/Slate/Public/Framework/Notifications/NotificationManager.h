#pragma once

#include "CoreMinimal.h"
#include "Templates/SharedPointer.h"
#include "Widgets/Notifications/SNotificationList.h"

/** One notification as a host without windows has it. Specific to the headless host. */
struct FShownNotification
{
	FText Text;
	FText SubText;
	SNotificationItem::ECompletionState State = SNotificationItem::CS_None;
	/** Of the buttons that the state shows. */
	TArray<FText> Buttons;
};

/** Shows notifications. The headless host writes them to the log and keeps the list of those that have not gone. Game thread. */
class SLATE_API FSlateNotificationManager
{
public:
	static FSlateNotificationManager& Get();

	TSharedPtr<SNotificationItem> AddNotification(const FNotificationInfo& Info);

	/** Those that have not gone, the oldest first. Specific to the headless host. */
	TArray<FShownNotification> GetShownNotifications() const;
	/** Presses a shown button of the notification with the text. False when there is none. Specific to the headless host. */
	bool PressButton(const FString& NotificationText, const FString& ButtonText);

private:
	friend class FNotificationItem;

	TArray<TSharedRef<class FNotificationItem>> Items;
};
