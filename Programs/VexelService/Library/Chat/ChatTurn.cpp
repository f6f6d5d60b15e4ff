#include "Chat/ChatTurn.h"

#include "Auth/Crypto.h"

#include <algorithm>
#include <utility>

namespace VexelService
{

namespace
{

constexpr std::chrono::milliseconds ListeningInterval{100};

}

FChatTurn::FChatTurn(std::string InUserId)
	: UserId(std::move(InUserId))
{
}

std::string FChatTurn::BeginCall()
{
	const std::lock_guard Lock(Mutex);
	WaitingReplyId = RandomId();
	Answered.reset();
	return WaitingReplyId;
}

bool FChatTurn::Answer(const std::string& ReplyId, FToolOutcome Outcome)
{
	const std::lock_guard Lock(Mutex);
	if (bEnded || WaitingReplyId.empty() || ReplyId != WaitingReplyId)
	{
		return false;
	}
	WaitingReplyId.clear();
	Answered = std::move(Outcome);
	Changed.notify_all();
	return true;
}

FToolOutcome FChatTurn::WaitForAnswer(std::chrono::milliseconds Timeout, const std::function<bool()>& IsListening)
{
	const auto Deadline = std::chrono::steady_clock::now() + Timeout;
	std::unique_lock Lock(Mutex);
	while (!bEnded && !Answered)
	{
		const auto Now = std::chrono::steady_clock::now();
		if (Now >= Deadline)
		{
			WaitingReplyId.clear();
			return {.Status = EToolStatus::TimedOut};
		}
		Changed.wait_until(Lock, std::min(Deadline, Now + ListeningInterval));
		Lock.unlock();
		const bool bListening = IsListening();
		Lock.lock();
		bEnded = bEnded || !bListening;
	}
	if (bEnded)
	{
		return {.Status = EToolStatus::Gone};
	}
	FToolOutcome Outcome = std::move(*Answered);
	Answered.reset();
	return Outcome;
}

void FChatTurn::End()
{
	const std::lock_guard Lock(Mutex);
	bEnded = true;
	Changed.notify_all();
}

bool FChatTurn::HasEnded() const
{
	const std::lock_guard Lock(Mutex);
	return bEnded;
}

std::shared_ptr<FChatTurn> FChatTurns::Begin(const std::string& ChatId, const std::string& UserId)
{
	const std::lock_guard Lock(Mutex);
	if (bClosed)
	{
		return nullptr;
	}
	std::shared_ptr<FChatTurn>& Slot = Turns[{UserId, ChatId}];
	if (Slot)
	{
		Slot->End();
	}
	Slot = std::make_shared<FChatTurn>(UserId);
	return Slot;
}

void FChatTurns::Finish(const std::string& ChatId, const std::shared_ptr<FChatTurn>& Turn)
{
	const std::lock_guard Lock(Mutex);
	Turn->End();
	const auto Found = Turns.find({Turn->GetUserId(), ChatId});
	if (Found != Turns.end() && Found->second == Turn)
	{
		Turns.erase(Found);
	}
}

bool FChatTurns::Answer(const std::string& ChatId, const std::string& UserId, const std::string& ReplyId, FToolOutcome Outcome)
{
	std::shared_ptr<FChatTurn> Turn;
	{
		const std::lock_guard Lock(Mutex);
		const auto Found = Turns.find({UserId, ChatId});
		if (Found == Turns.end())
		{
			return false;
		}
		Turn = Found->second;
	}
	return Turn->Answer(ReplyId, std::move(Outcome));
}

void FChatTurns::EndAll()
{
	const std::lock_guard Lock(Mutex);
	bClosed = true;
	for (const auto& [Key, Turn] : Turns)
	{
		Turn->End();
	}
}

std::size_t FChatTurns::Count() const
{
	const std::lock_guard Lock(Mutex);
	return Turns.size();
}

}
