#pragma once

#include "CoreMinimal.h"
#include "Misc/Optional.h"

/** A vexel-service of this program's own: started on a free loopback port, ended with the program. */
class FLocalService
{
public:
	FLocalService() = default;
	~FLocalService();
	UE_NONCOPYABLE(FLocalService)

	/** Starts the program and waits until it listens. Answers why it does not, or nothing. */
	TOptional<FString> Start(const FString& ProgramPath);

	const FString& GetUrl() const { return Url; }
	/** Refresh token that the service minted for its local user. It comes through a pipe and is written nowhere here. */
	const FString& GetRefreshToken() const { return RefreshToken; }

private:
	int32 ProcessId = 0;
	/** The service ends when this end of its standard input closes, however this program ends. */
	int32 InputDescriptor = -1;
	FString Url;
	FString RefreshToken;
};
