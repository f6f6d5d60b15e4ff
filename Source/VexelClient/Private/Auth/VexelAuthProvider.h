#pragma once

#include "VexelHttp.h"

/** Through it every authenticated request asks for its access token. */
class FVexelAuthProvider final : public FVexelHttp::IAuthProvider
{
public:
	virtual EAuthResult GetAuthState(FString& OutToken) override;
	virtual TVexelTaskResult<void> RefreshToken(const FString& RefusedToken) override;
};
