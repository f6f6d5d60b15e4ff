#pragma once

#include "EditorFixture.h"
#include "ScriptedHttpServer.h"
#include "Subsystem/VexelChatSubsystem.h"

#include <string>

/** The plug-in logged in at a scripted service, with a conversation open and every event of a turn noted. */
class ChatTurn : public FEditorTest
{
protected:
	virtual void SetUp() override;
	virtual void TearDown() override;

	/** The access token of the test's user, "user-1". */
	static std::string GetToken();
	void LogIn();

	std::string GetChatId() const;

	/** Sends a message and runs the turn to its end. */
	void RunTurn(const TCHAR* Message);
	/** Sends a message and runs until text has come. */
	void RunUntilText(const TCHAR* Message);

	/** The bodies of all requests of a path. */
	TArray<TSharedPtr<FJsonObject>> FindBodies(const std::string& Path) const;
	/** The body of the last request of a path; null without one. */
	TSharedPtr<FJsonObject> FindBody(const std::string& Path) const;

	std::string ReadStoredConversation() const;

	/** For an answer that waits. Outlives the server, whose threads may be waiting to the end. */
	FScriptedGate Gate;
	FScriptedHttpServer Server;
	UVexelChatSubsystem* Subsystem = nullptr;
	TSharedPtr<FVexelChatConversation> Conversation;
	FString Streamed;
	EVexelChatRequestState LastState = EVexelChatRequestState::Preparing;
	std::string Failure;
	std::string FailureChain;
	int32 NumChanges = 0;
};
