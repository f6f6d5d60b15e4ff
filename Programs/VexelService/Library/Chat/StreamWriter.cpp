#include "Chat/StreamWriter.h"

#include <cctype>
#include <string>
#include <thread>
#include <utility>

namespace VexelService
{

namespace
{

constexpr std::size_t PieceBytes = 24;

bool IsUtf8Continuation(char Character)
{
	return (static_cast<unsigned char>(Character) & 0xC0) == 0x80;
}

// A name or a literal of the user's project may read like a tag. Markdown would take "<word" for HTML just as well, so every
// such "<" is written as its entity; one at the end could meet its letter in the next text.
std::string WithoutTags(std::string_view Content)
{
	std::string Safe;
	Safe.reserve(Content.size());
	for (std::size_t Index = 0; Index < Content.size(); ++Index)
	{
		const bool bLast = Index + 1 == Content.size();
		if (Content[Index] == '<' && (bLast || std::isalpha(static_cast<unsigned char>(Content[Index + 1]))))
		{
			Safe += "&lt;";
		}
		else
		{
			Safe += Content[Index];
		}
	}
	return Safe;
}

// Where the piece that starts at Begin ends: behind the first blank after PieceBytes, never inside a character.
std::size_t PieceEnd(std::string_view Content, std::size_t Begin)
{
	std::size_t End = Begin + PieceBytes;
	if (End >= Content.size())
	{
		return Content.size();
	}
	const std::size_t Blank = Content.find_first_of(" \n", End);
	if (Blank != std::string_view::npos && Blank < End + PieceBytes)
	{
		return Blank + 1;
	}
	while (End < Content.size() && IsUtf8Continuation(Content[End]))
	{
		++End;
	}
	return End;
}

}

FStreamWriter::FStreamWriter(FSend InSend, std::chrono::milliseconds InPieceDelay)
	: Send(std::move(InSend))
	, PieceDelay(InPieceDelay)
{
}

bool FStreamWriter::Text(std::string_view Content)
{
	const std::string Safe = WithoutTags(Content);
	for (std::size_t Begin = 0; Begin < Safe.size();)
	{
		const std::size_t End = PieceEnd(Safe, Begin);
		if (!SendBytes(std::string_view(Safe).substr(Begin, End - Begin)))
		{
			return false;
		}
		if (PieceDelay.count() > 0)
		{
			std::this_thread::sleep_for(PieceDelay);
		}
		Begin = End;
	}
	return !bFailed;
}

bool FStreamWriter::ToolCall(std::string_view ToolName, std::string_view ReplyId, const FJson& Arguments)
{
	FOrderedJson Info = {{"tool_name", ToolName}, {"reply_id", ReplyId}};
	for (const auto& [Key, Value] : Arguments.items())
	{
		Info[Key] = Value;
	}
	return InfoTag("ToolCall", Info);
}

bool FStreamWriter::Image(std::string_view AssetId, std::string_view Url)
{
	return Tag("Image", "asset_id=" + JsonLine(FJson(AssetId)) + " url=" + JsonLine(FJson(Url)));
}

bool FStreamWriter::Checkpoint(std::string_view CheckpointId)
{
	return InfoTag("Checkpoint", {{"checkpoint_id", CheckpointId}});
}

bool FStreamWriter::Error(std::string_view Message)
{
	return InfoTag("Error", {{"message", Message}});
}

bool FStreamWriter::SendBytes(std::string_view Bytes)
{
	bFailed = bFailed || !Send(Bytes);
	return !bFailed;
}

bool FStreamWriter::Tag(std::string_view Name, std::string_view Attributes)
{
	std::string Bytes = "<";
	Bytes += Name;
	Bytes += " ";
	Bytes += Attributes;
	Bytes += "/>";
	return SendBytes(Bytes);
}

bool FStreamWriter::InfoTag(std::string_view Name, const FOrderedJson& Info)
{
	return Tag(Name, "info=" + JsonLine(Info));
}

}
