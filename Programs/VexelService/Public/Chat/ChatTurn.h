#pragma once

#include "Assistant/AssistantChannel.h"

#include <chrono>
#include <condition_variable>
#include <functional>
#include <map>
#include <memory>
#include <mutex>
#include <optional>
#include <string>

namespace VexelService
{

/** One turn in progress: the place where the streaming thread meets the requests that bring tool results. Thread-safe. */
class FChatTurn
{
public:
	explicit FChatTurn(std::string InUserId);

	const std::string& GetUserId() const { return UserId; }

	/** Opens the one call of a turn that may wait at a time and returns its reply id. */
	std::string BeginCall();

	/** Brings the result of the waiting call; false when ReplyId is not the one that waits. */
	bool Answer(const std::string& ReplyId, FToolOutcome Outcome);

	/** Waits for the result. IsListening is asked a few times a second whether the client is still there. */
	FToolOutcome WaitForAnswer(std::chrono::milliseconds Timeout, const std::function<bool()>& IsListening);

	/** Makes the present and every later wait answer that nobody listens. */
	void End();

	bool HasEnded() const;

private:
	const std::string UserId;
	mutable std::mutex Mutex;
	std::condition_variable Changed;
	std::string WaitingReplyId;
	std::optional<FToolOutcome> Answered;
	bool bEnded = false;
};

/** The turns in progress, by chat id. Thread-safe. */
class FChatTurns
{
public:
	/** Starts a turn. A turn of the same chat that still runs is ended: its client asked anew. Null after EndAll. */
	std::shared_ptr<FChatTurn> Begin(const std::string& ChatId, const std::string& UserId);

	void Finish(const std::string& ChatId, const std::shared_ptr<FChatTurn>& Turn);

	/** Brings a tool result to the call that waits for it; false when this user has no such call. */
	bool Answer(const std::string& ChatId, const std::string& UserId, const std::string& ReplyId, FToolOutcome Outcome);

	/** Ends every turn and refuses new ones. */
	void EndAll();

	std::size_t Count() const;

private:
	mutable std::mutex Mutex;
	// The user is part of the key, so that nobody can end another's turn by its chat id.
	std::map<std::pair<std::string, std::string>, std::shared_ptr<FChatTurn>> Turns;
	bool bClosed = false;
};

}
