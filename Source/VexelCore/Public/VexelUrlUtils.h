#pragma once

#include "CoreMinimal.h"
#include "VexelExpected.h"

/** Addresses taken apart and put together. Any thread. */
class VEXELCORE_API FVexelUrlUtils
{
public:
	/**
	 * "https://host:8443" of "HTTPS://Host:8443/path?query", without a port that is the scheme's own: what says whose an address
	 * is. FVexelError_Http for an address that is none of http or https, or that carries a user name or a password.
	 */
	static TVexelExpected<FString> GetOrigin(const FString& Url);

	/** Whether an address names this machine itself by its loopback interface, so that what is sent there does not leave it. */
	static bool IsLoopback(const FString& Url);

	/** A text as one segment of a path: whatever it holds, it neither leaves its place in the path nor begins a query. */
	static FString EncodeSegment(const FString& Text);

	/** ".glb" of "https://host/a/Model.GLB?signature=...", in lower case; empty without one that looks like an extension. */
	static FString GuessExtensionFromUrl(const FString& Url);
};
