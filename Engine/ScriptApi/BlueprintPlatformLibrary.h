// Package: /Script/Engine
#pragma once

#include "GameInstance.h"
#include "Kismet/BlueprintFunctionLibrary.h"
#include "BlueprintPlatformLibrary.generated.h"

/** How a device is held. */
UENUM(BlueprintType)
namespace EScreenOrientation
{
enum Type : int
{
	Unknown,
	Portrait,
	PortraitUpsideDown,
	LandscapeLeft,
	LandscapeRight,
	FaceUp,
	FaceDown,
	PortraitSensor,
	LandscapeSensor,
	FullSensor
};
}

/** Whether the game is in front. */
UENUM(BlueprintType)
namespace EApplicationState
{
enum Type : int
{
	Unknown,
	Inactive,
	Background,
	Active
};
}

/** How hot a device is. */
UENUM(BlueprintType)
enum class ETemperatureSeverityType : uint8
{
	Unknown,
	Good,
	Bad,
	Serious,
	Critical,
	NumSeverities
};

DECLARE_DYNAMIC_MULTICAST_DELEGATE(FPlatformDelegate);
DECLARE_DYNAMIC_MULTICAST_DELEGATE_OneParam(
	FPlatformScreenOrientationChangedDelegate, TEnumAsByte<EScreenOrientation::Type>, inScreenOrientation);
DECLARE_DYNAMIC_MULTICAST_DELEGATE_OneParam(FPlatformStartupArgumentsDelegate, const TArray<FString>&, StartupArguments);
DECLARE_DYNAMIC_MULTICAST_DELEGATE_OneParam(FPlatformRegisteredForRemoteNotificationsDelegate, const TArray<uint8>&, inArray);
DECLARE_DYNAMIC_MULTICAST_DELEGATE_OneParam(FPlatformRegisteredForUserNotificationsDelegate, int32, inInt);
DECLARE_DYNAMIC_MULTICAST_DELEGATE_OneParam(FPlatformFailedToRegisterForRemoteNotificationsDelegate, FString, inString);
DECLARE_DYNAMIC_MULTICAST_DELEGATE_TwoParams(
	FPlatformReceivedRemoteNotificationDelegate, FString, inString, TEnumAsByte<EApplicationState::Type>, inAppState);

/** A game's run that hears of the device. */
UCLASS()
class ENGINE_API UPlatformGameInstance : public UGameInstance
{
	GENERATED_BODY()

public:
	UPROPERTY(BlueprintAssignable)
	FPlatformDelegate ApplicationWillDeactivateDelegate;

	UPROPERTY(BlueprintAssignable)
	FPlatformDelegate ApplicationHasReactivatedDelegate;

	UPROPERTY(BlueprintAssignable)
	FPlatformDelegate ApplicationWillEnterBackgroundDelegate;

	UPROPERTY(BlueprintAssignable)
	FPlatformDelegate ApplicationHasEnteredForegroundDelegate;

	UPROPERTY(BlueprintAssignable)
	FPlatformDelegate ApplicationWillTerminateDelegate;

	UPROPERTY(BlueprintAssignable)
	FPlatformDelegate ApplicationShouldUnloadResourcesDelegate;

	UPROPERTY(BlueprintAssignable)
	FPlatformStartupArgumentsDelegate ApplicationReceivedStartupArgumentsDelegate;

	UPROPERTY(BlueprintAssignable)
	FPlatformScreenOrientationChangedDelegate ApplicationReceivedScreenOrientationChangedNotificationDelegate;
};

/** What a device can do. */
UCLASS()
class ENGINE_API UBlueprintPlatformLibrary : public UBlueprintFunctionLibrary
{
	GENERATED_BODY()

public:
	/** Takes back all messages of the device. */
	UFUNCTION(BlueprintCallable, Category = "Platform|LocalNotification")
	static void ClearAllLocalNotifications();

	/** Shows a message of the device at a time. */
	UFUNCTION(BlueprintCallable, Category = "Platform|LocalNotification")
	static int32 ScheduleLocalNotificationAtTime(const FDateTime& FireDateTime, bool LocalTime, const FText& Title, const FText& Body,
		const FText& Action, const FString& ActivationEvent);

	/** Shows a message of the device after some seconds. */
	UFUNCTION(BlueprintCallable, Category = "Platform|LocalNotification")
	static int32 ScheduleLocalNotificationFromNow(
		int32 inSecondsFromNow, const FText& Title, const FText& Body, const FText& Action, const FString& ActivationEvent);

	/** Shows a mark on the game's icon at a time. */
	UFUNCTION(BlueprintCallable, Category = "Platform|LocalNotification")
	static int32 ScheduleLocalNotificationBadgeAtTime(const FDateTime& FireDateTime, bool LocalTime, const FString& ActivationEvent);

	/** Shows a mark on the game's icon after some seconds. */
	UFUNCTION(BlueprintCallable, Category = "Platform|LocalNotification")
	static void ScheduleLocalNotificationBadgeFromNow(int32 inSecondsFromNow, const FString& ActivationEvent);

	/** Takes back a message of the device. */
	UFUNCTION(BlueprintCallable, Category = "Platform|LocalNotification")
	static void CancelLocalNotification(const FString& ActivationEvent);

	/** Takes back a message of the device by number. */
	UFUNCTION(BlueprintCallable, Category = "Platform|LocalNotification")
	static void CancelLocalNotificationById(int32 NotificationId);

	/** The message that began the game. */
	UFUNCTION(BlueprintCallable, Category = "Platform|LocalNotification")
	static void GetLaunchNotification(bool& NotificationLaunchedApp, FString& ActivationEvent, int32& FireDate);

	/** How the device is held. */
	UFUNCTION(BlueprintPure, Category = "Platform|LocalNotification")
	static TEnumAsByte<EScreenOrientation::Type> GetDeviceOrientation();

	/** How the device may be held. */
	UFUNCTION(BlueprintPure, Category = "Platform|LocalNotification")
	static TEnumAsByte<EScreenOrientation::Type> GetAllowedDeviceOrientation();

	/** Sets how the device may be held. */
	UFUNCTION(BlueprintCallable, Category = "Platform|LocalNotification")
	static void SetAllowedDeviceOrientation(TEnumAsByte<EScreenOrientation::Type> NewAllowedDeviceOrientation);
};
