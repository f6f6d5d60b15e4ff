#pragma once

#include "Auth/TokenService.h"
#include "Server/ServiceConfig.h"
#include "Support/Refusal.h"

#include <filesystem>
#include <memory>
#include <string>

namespace VexelService
{

struct FServerOptions
{
	/** 0 takes a free port. */
	int Port = 0;
	/** Where keys and tokens are kept; empty keeps them in memory. */
	std::filesystem::path DataFolder;
	FServiceConfig Config;
	/** The clock of token expiry. */
	FClock Clock = SystemClock();
	/** Logs each request's method, path and status on standard error; never a header or a body. */
	bool bVerbose = false;
};

/** The whole service on one loopback port, with its own threads. */
class FAssistantServer
{
public:
	/** Listens and serves until the object is destroyed. */
	static TOrRefusal<std::unique_ptr<FAssistantServer>> Start(const FServerOptions& Options);

	/** Ends every turn, then waits for the threads. */
	~FAssistantServer();

	int GetPort() const;
	std::string GetUrl() const;

	/** Starts a session of the local user. */
	TOrRefusal<std::string> MintRefreshToken();

	/** How many chat turns are being answered. */
	std::size_t CountTurns() const;

private:
	class FImplementation;

	explicit FAssistantServer(std::unique_ptr<FImplementation> InImplementation);

	std::unique_ptr<FImplementation> Implementation;
};

}
