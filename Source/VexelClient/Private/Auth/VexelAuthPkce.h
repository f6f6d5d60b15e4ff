#pragma once

#include "Auth/VexelAuthSecret.h"
#include "VexelExpected.h"

/** What ties the answers of the service to one login: nobody who does not hold it can complete the login or use its code. */
struct FVexelAuthPkce
{
	/** Made of the system's secure random source. */
	static TVexelExpected<FVexelAuthPkce> Make();

	/** 43 characters, shown to the service alone, with the code. */
	FVexelAuthSecret CodeVerifier;
	/** Of the verifier; it may be seen. */
	FString CodeChallenge;
	/** 22 characters, which come back with the code. */
	FVexelAuthSecret State;
};
