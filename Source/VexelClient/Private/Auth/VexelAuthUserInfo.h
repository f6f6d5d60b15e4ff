#pragma once

#include "CoreMinimal.h"
#include "Delegates/Delegate.h"
#include "VexelJson.h"
#include "VexelTaskResult.h"

class FVexelChatModeInfo;

/** The logged-in user as the service knows them: names for the interface, the credit balance, and what is switched on for them. */
class FVexelAuthUserInfo : public IVexelJsonable
{
public:
	DECLARE_MULTICAST_DELEGATE_OneParam(FOnUserInfoChanged, const FVexelAuthUserInfo&);

	/** The current profile, an empty one while nobody is logged in. Any thread. */
	static FVexelAuthUserInfo GetCurrent();
	/** Fetches the profile; it is current, and OnUserInfoChanged broadcast, on the game thread before the result is complete. */
	static TVexelTaskResult<FVexelAuthUserInfo> ForceRefresh();
	/** The id of this machine's user, made at the first call and kept in the secure store. */
	static TVexelExpected<FString> GetUserGuid();
	/** Forgets the profile, as when the user logs out; an answer that is still on its way is dropped. Game thread. */
	static void Clear();
	/** Called on the game thread with each new profile, an empty one too. */
	static FOnUserInfoChanged& OnUserInfoChanged();

	virtual TSharedRef<FJsonObject> ToJson() const override;
	/** Takes what is there; false, with a line in the log, for a field of another type. */
	virtual bool FromJson(const TSharedRef<FJsonObject>& Object) override;

	const FString& GetName() const { return Name; }
	const FString& GetEmail() const { return Email; }
	int32 GetCredits() const { return Credits; }
	int32 GetMaxCredits() const { return MaxCredits; }
	const TArray<FString>& GetFeatures() const { return Features; }

	/** The feature's exact name. */
	bool IsFeatureEnabled(const FString& Feature) const;
	/** Whether the features hold the mode's name, compared without regard to case. */
	bool CanUseChatMode(const FString& ChatMode) const;
	bool CanUseChatMode(const FVexelChatModeInfo& Mode) const;
	/** Whether this is somebody's: the service names each user. */
	bool IsValid() const { return !Name.IsEmpty() || !Email.IsEmpty(); }

private:
	static void SetCurrent(const FVexelAuthUserInfo& Info);

	FString Name;
	FString Email;
	int32 Credits = 0;
	int32 MaxCredits = 0;
	TArray<FString> Features;
};
