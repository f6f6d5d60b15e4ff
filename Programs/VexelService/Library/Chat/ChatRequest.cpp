#include "Chat/ChatRequest.h"

#include "Support/JsonText.h"

#include <array>
#include <algorithm>
#include <optional>

namespace VexelService
{

namespace
{

constexpr std::size_t MaxIdBytes = 128;
constexpr std::size_t MaxTitleBytes = 4096;
constexpr std::size_t MaxMessages = 10'000;
constexpr std::size_t MaxOpenAssets = 4096;

constexpr std::array<std::string_view, 3> Roles = {"user", "assistant", "system"};

FRefusal Invalid(std::string Detail)
{
	return {422, std::move(Detail)};
}

/** Reads members one after the other and remembers the first that is wrong. */
class FMemberReader
{
public:
	explicit FMemberReader(const FJson& InObject)
		: Object(InObject)
	{
	}

	/** A string that the request must have. */
	std::string Text(const char* Key, std::size_t MaxBytes, bool bMayBeEmpty)
	{
		const FJson* const Member = FindMember(Object, Key);
		if (!Member || !Member->is_string())
		{
			Fail(std::string("\"") + Key + "\" must be a string.");
			return {};
		}
		std::string Value = Member->get<std::string>();
		if (Value.size() > MaxBytes || (Value.empty() && !bMayBeEmpty))
		{
			Fail(std::string("\"") + Key + "\" must have " + (bMayBeEmpty ? "at most " : "1 to ") + std::to_string(MaxBytes) + " bytes.");
			return {};
		}
		return Value;
	}

	std::string OptionalText(const char* Key, std::size_t MaxBytes)
	{
		return FindMember(Object, Key) ? Text(Key, MaxBytes, true) : std::string();
	}

	void Fail(std::string Detail)
	{
		if (!Problem)
		{
			Problem = Invalid(std::move(Detail));
		}
	}

	const std::optional<FRefusal>& FirstProblem() const { return Problem; }

private:
	const FJson& Object;
	std::optional<FRefusal> Problem;
};

void AppendLine(std::string& Target, const std::string& Text)
{
	if (!Target.empty())
	{
		Target += '\n';
	}
	Target += Text;
}

// "content" as it is sent to a service: one string, or an array of text and image parts.
bool ReadContent(const FJson& Content, std::string& Text)
{
	if (Content.is_string())
	{
		Text = Content.get<std::string>();
		return true;
	}
	if (!Content.is_array())
	{
		return false;
	}
	for (const FJson& Part : Content)
	{
		const std::string Type = TextMember(Part, "type");
		const FJson* const PartText = FindMember(Part, "text");
		if (Type == "text" && PartText && PartText->is_string())
		{
			AppendLine(Text, PartText->get<std::string>());
		}
		else if (Type != "image")
		{
			return false;
		}
	}
	return true;
}

// "message_blocks" as conversations are stored.
bool ReadBlocks(const FJson& Blocks, std::string& Text)
{
	if (!Blocks.is_array())
	{
		return false;
	}
	for (const FJson& Block : Blocks)
	{
		const std::string Type = TextMember(Block, "type");
		if (Type.empty())
		{
			return false;
		}
		const FJson* const Content = FindMember(Block, "content");
		if (Type == "text")
		{
			if (!Content || !Content->is_string())
			{
				return false;
			}
			AppendLine(Text, Content->get<std::string>());
		}
	}
	return true;
}

// The calls of "read_blueprint" among a stored message's blocks. What is not as stored says nothing.
void ReadToolCalls(const FJson& Blocks, std::vector<std::string>& Paths)
{
	for (const FJson& Block : Blocks)
	{
		const FJson* const Tool = TextMember(Block, "type") == "tool_call" ? FindMember(Block, "tool_info") : nullptr;
		const FJson* const Info = Tool && TextMember(*Tool, "tool_name") == "read_blueprint" ? FindMember(*Tool, "info") : nullptr;
		const std::string Path = Info ? TextMember(*Info, "blueprint") : std::string();
		if (!Path.empty() && Path.size() <= MaxTitleBytes && std::find(Paths.begin(), Paths.end(), Path) == Paths.end())
		{
			Paths.push_back(Path);
		}
	}
}

TOrRefusal<FChatMessage> ReadMessage(const FJson& Object, std::size_t Index)
{
	const std::string Where = "\"messages\"[" + std::to_string(Index) + "]";
	FChatMessage Message;
	Message.Role = TextMember(Object, "role");
	if (std::find(Roles.begin(), Roles.end(), Message.Role) == Roles.end())
	{
		return Invalid(Where + " must have a \"role\" of \"user\", \"assistant\" or \"system\".");
	}
	const FJson* const Content = FindMember(Object, "content");
	const FJson* const Blocks = FindMember(Object, "message_blocks");
	const bool bRead = Content ? ReadContent(*Content, Message.Text) : Blocks && ReadBlocks(*Blocks, Message.Text);
	if (!bRead)
	{
		return Invalid(Where + " must have a valid \"content\" or \"message_blocks\".");
	}
	ReadToolCalls(ArrayMember(Object, "message_blocks"), Message.ReadBlueprints);
	return Message;
}

std::optional<FRefusal> ReadMessages(const FJson& Body, std::vector<FChatMessage>& Messages)
{
	const FJson& List = ArrayMember(Body, "messages");
	if (List.empty() || List.size() > MaxMessages)
	{
		return Invalid("\"messages\" must be an array of 1 to " + std::to_string(MaxMessages) + " messages.");
	}
	for (const FJson& Item : List)
	{
		TOrRefusal<FChatMessage> Message = ReadMessage(Item, Messages.size());
		if (!Message)
		{
			return Message.Error();
		}
		Messages.push_back(std::move(*Message));
	}
	if (Messages.back().Role != "user")
	{
		return Invalid("The last of \"messages\" must be the user's.");
	}
	return std::nullopt;
}

std::optional<FRefusal> ReadContext(const FJson& Body, FChatRequest& Request)
{
	const FJson* const Context = FindMember(Body, "context");
	if (!Context)
	{
		return std::nullopt;
	}
	if (!Context->is_object())
	{
		return Invalid("\"context\" must be an object.");
	}
	FMemberReader Reader(*Context);
	Reader.OptionalText("editor_window_name", MaxTitleBytes);
	Request.CurrentWorld = Reader.OptionalText("current_world", MaxTitleBytes);
	const FJson* const OpenAssets = FindMember(*Context, "open_assets");
	if (OpenAssets && (!OpenAssets->is_array() || OpenAssets->size() > MaxOpenAssets))
	{
		Reader.Fail("\"open_assets\" must be an array of at most " + std::to_string(MaxOpenAssets) + " strings.");
	}
	for (const FJson& Asset : ArrayMember(*Context, "open_assets"))
	{
		if (!Asset.is_string())
		{
			Reader.Fail("\"open_assets\" must hold strings only.");
			break;
		}
		Request.OpenAssets.push_back(Asset.get<std::string>());
	}
	return Reader.FirstProblem();
}

}

TOrRefusal<FChatRequest> ReadChatRequest(std::string_view Body)
{
	const std::optional<FJson> Object = ParseJson(Body);
	if (!Object || !Object->is_object())
	{
		return FRefusal{400, "The body must be a JSON object."};
	}
	FChatRequest Request;
	FMemberReader Reader(*Object);
	Request.ChatId = Reader.Text("chat_id", MaxIdBytes, false);
	Request.UserId = Reader.Text("user_id", MaxIdBytes, true);
	Request.CheckpointId = Reader.OptionalText("checkpoint_id", MaxIdBytes);
	Reader.OptionalText("conversation_title", MaxTitleBytes);
	Request.ChatMode = Reader.Text("chat_mode", MaxIdBytes, false);
	Request.EngineVersion = Reader.Text("engine_version", MaxIdBytes, false);
	if (Reader.FirstProblem())
	{
		return *Reader.FirstProblem();
	}
	if (const std::optional<FRefusal> Problem = ReadMessages(*Object, Request.Messages))
	{
		return *Problem;
	}
	if (const std::optional<FRefusal> Problem = ReadContext(*Object, Request))
	{
		return *Problem;
	}
	return Request;
}

}
