#pragma once

#include "CoreMinimal.h"
#include "Dom/JsonObject.h"
#include "VexelTaskResult.h"

class FVexelBlueprintMapping;
class FVexelChatConversation;
class FVexelToolSchema;

/** The call that a tool performs. */
struct FVexelToolContext
{
	/** Chat that the reply is addressed to: the sub-agent's inside a sub-chain. */
	FString ChatId;
	FString ReplyId;
	/** Conversation whose ids the tool speaks in; null when the tool is called outside one. */
	TSharedPtr<FVexelChatConversation> Conversation;

	/** The conversation's; outside one, where nothing remembers node names, a new one for this call alone. */
	TSharedRef<FVexelBlueprintMapping> GetMapping() const;
};

/** A tool's arguments as the service sent them, by name. */
class FVexelToolInput
{
public:
	explicit FVexelToolInput(const TSharedRef<FJsonObject>& InValues)
		: Values(InValues)
	{
	}

	const TSharedRef<FJsonObject>& GetValues() const { return Values; }

private:
	TSharedRef<FJsonObject> Values;
};

/** How a tool is named on the wire and shown in the chat: its row of the tool table. The texts are literals. */
struct FVexelToolRow
{
	const TCHAR* Name;
	/** Style name of the icon beside the tool's block. */
	const TCHAR* Icon;
	/** Shown while a call runs; null for "Using NAME". */
	const TCHAR* ProgressText;
	/** Shown when a call has finished; null for "Analyzing data from NAME". */
	const TCHAR* DoneText;
};

/** Something that the assistant can ask the editor to do. One shared, immutable object a tool; calls keep no state in it. */
class FVexelTool
{
public:
	explicit FVexelTool(const FVexelToolRow& InRow)
		: Row(InRow)
	{
	}
	virtual ~FVexelTool() = default;

	/** False for a tool that the service performs itself and the editor only shows. */
	virtual bool ProducesResponse() const { return true; }
	virtual FName GetName() const;
	virtual FName GetIcon() const;
	virtual FString GetProgressText() const;
	virtual FString GetDoneText() const;

	/** Performs the tool. Called on the game thread; completes on any thread with the object that goes back to the service. */
	virtual TVexelTaskResult<TSharedRef<FJsonObject>> Call(const FVexelToolContext& Context, const FVexelToolInput& Input) const = 0;

	/** What the tool takes; null for one that is not performed here. */
	virtual const FVexelToolSchema* GetSchema() const { return nullptr; }

private:
	FVexelToolRow Row;
};

/**
 * A tool with its arguments as a record, which has a TVexelToolSchema. A tool is one source file: the record, a class derived from
 * this with a Run, and VEXEL_DEFINE_TOOL. Its row of the tool table names the class.
 */
template <typename RecordType>
class TVexelTool : public FVexelTool
{
public:
	using FVexelTool::FVexelTool;

	virtual TVexelTaskResult<TSharedRef<FJsonObject>> Call(const FVexelToolContext& Context, const FVexelToolInput& Input) const override final
	{
		TVexelExpected<RecordType> Record = RecordType::GetSchema().Read(*Input.GetValues());
		return Record.HasError() ? MakeInputError(MoveTemp(Record).GetError()) : Run(Context, Record.GetValue());
	}
	virtual const FVexelToolSchema* GetSchema() const override final { return &RecordType::GetSchema(); }

protected:
	/** What the call answers when its arguments do not fit the schema. */
	virtual FVexelError MakeInputError(FVexelError&& Error) const { return MoveTemp(Error); }

	/** Performs the tool with arguments that fit the schema. As Call. */
	virtual TVexelTaskResult<TSharedRef<FJsonObject>> Run(const FVexelToolContext& Context, const RecordType& Input) const = 0;
};

/** An error of a tool's work: "Tool call failed", caused by what went wrong while something was done. A complaint of the input stays one. */
FVexelError MakeToolError(FVexelError&& Cause, const TCHAR* While);

/** Makes a tool of a class for its row of the table. */
template <typename ToolType>
TSharedRef<FVexelTool> MakeVexelTool(const FVexelToolRow& Row);

/** Lets the tool table make a tool whose class nobody else sees. Stands once in the tool's source file. */
#define VEXEL_DEFINE_TOOL(ToolType) \
	template <> \
	TSharedRef<FVexelTool> MakeVexelTool<ToolType>(const FVexelToolRow& Row) \
	{ \
		return MakeShared<ToolType>(Row); \
	}

/** A tool that the service performs itself. */
class FVexelToolNoResponse : public FVexelTool
{
public:
	using FVexelTool::FVexelTool;

	virtual bool ProducesResponse() const override { return false; }
	virtual TVexelTaskResult<TSharedRef<FJsonObject>> Call(const FVexelToolContext& Context, const FVexelToolInput& Input) const override;
};

/** A tool of the shared vocabulary that this version of the editor plug-in cannot perform. It says so. */
class FVexelToolUnavailable : public FVexelTool
{
public:
	using FVexelTool::FVexelTool;

	virtual TVexelTaskResult<TSharedRef<FJsonObject>> Call(const FVexelToolContext& Context, const FVexelToolInput& Input) const override;
};
