#pragma once

#include "Support/Refusal.h"

#include <chrono>
#include <cstdint>
#include <filesystem>
#include <string>
#include <vector>

namespace VexelService
{

/** The one account of a local service, as "/api/user" shows it. */
struct FUserProfile
{
	std::string Name = "Local User";
	std::string Email = "local@localhost";
	int Credits = 1000;
	int MaxCredits = 1000;
	std::vector<std::string> Features = {"vexel_agent", "vexel_agent_lite", "vexel_lite", "blueprint_agent"};
};

/** Who decides about a login. */
enum class ELoginDecision
{
	/** The user, on the service's page. */
	Ask,
	/** The service, without a page: for a client that is tried where there is no browser. */
	Approve,
	Deny
};

/** How the service takes part in a login, so that a client can be tried against each course that one takes. */
struct FLoginConfig
{
	/** How long a login waits for the user's decision. */
	std::chrono::seconds RequestLifetime{600};
	std::chrono::seconds CodeLifetime{60};
	/** The pause before each answer below "/oauth/". */
	std::chrono::milliseconds Delay{0};
	ELoginDecision Decision = ELoginDecision::Ask;
	/** Paths of the login that answer status 500. */
	std::vector<std::string> FailingPaths;
};

struct FServiceConfig
{
	std::chrono::seconds AccessTokenLifetime{3600};
	std::chrono::seconds RefreshTokenLifetime{30 * 24 * 3600};
	/** How long a used refresh token may work once more: as long as an editor that died takes to be there again. */
	std::chrono::seconds RefreshTokenGrace{120};
	/** How long a turn waits for the result of one tool call. */
	std::chrono::milliseconds ToolTimeout{120'000};
	/** The pause after each streamed piece of text. */
	std::chrono::milliseconds PieceDelay{0};
	FUserProfile User;
	FLoginConfig Login;
};

/**
 * Reads the configuration: a JSON object with any of "access_token_seconds", "refresh_token_seconds",
 * "refresh_grace_seconds", "tool_timeout_seconds", "piece_delay_milliseconds", "user" (with "name", "email", "credits", "max_credits", "features") and "login" (with
 * "request_seconds", "code_seconds", "delay_milliseconds", "decision": "ask", "approve" or "deny", and "failing_paths"). What the
 * file leaves out keeps its default; an unknown key or a value of the wrong type or range is refused by name.
 */
TOrRefusal<FServiceConfig> LoadServiceConfig(const std::filesystem::path& File);

}
