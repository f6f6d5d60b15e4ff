#pragma once

#include "Assistant/AssistantChannel.h"
#include "Chat/ChatRequest.h"

namespace VexelService
{

/**
 * Answers the last message of a chat, reading what it needs through the channel's tools. Deterministic: the same messages and
 * tool results give the same words. Returns when the turn is over or nobody listens.
 */
void AnswerTurn(const FChatRequest& Request, IAssistantChannel& Channel);

}
