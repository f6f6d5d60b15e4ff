#include "Commands.h"

#include "Console.h"
#include "Dom/JsonObject.h"
#include "Misc/FileHelper.h"
#include "VexelJson.h"

#include <cstdio>

namespace
{
constexpr FOptionRow ProjectOption = {
	TEXT("--project"), TEXT("DIR"), TEXT("the project's directory or .uproject; the sample project without it")};
constexpr FOptionRow JsonOption = {TEXT("--json"), nullptr, TEXT("one JSON document on standard output")};
constexpr FOptionRow VerboseOption = {TEXT("--verbose"), nullptr, TEXT("the log on standard error")};
constexpr FOptionRow BlueprintOption = {TEXT("--blueprint"), TEXT("PATH"), TEXT("object path, such as /Game/BP_Door, or the name of a Blueprint")};
constexpr FOptionRow GraphOption = {TEXT("--graph"), TEXT("NAME"), TEXT("the graph; the event graph without it")};
constexpr FOptionRow SaveOption = {TEXT("--save"), nullptr, TEXT("saves what was changed")};

constexpr FOptionRow ChatJsonOption = {
	TEXT("--json"), nullptr, TEXT("one JSON document with --message; without it one event a line (Docs/Chat.md)")};
constexpr FOptionRow ChatOptions[] = {
	ProjectOption,
	{TEXT("--message"), TEXT("TEXT"), TEXT("one message instead of an interactive chat")},
	{TEXT("--continue"), nullptr, TEXT("goes on with the newest conversation instead of a new one")},
	{TEXT("--service"), TEXT("URL"), TEXT("the service; a local one is started without it")},
	{TEXT("--token-fd"), TEXT("N"),
		TEXT("an open file descriptor to read the service's refresh token from, once; it is kept in the secure store")},
	SaveOption,
	ChatJsonOption,
	VerboseOption,
};
constexpr FOptionRow ServiceOption = {TEXT("--service"), TEXT("URL"), TEXT("the service")};
constexpr FOptionRow LoginOptions[] = {
	ServiceOption,
	{TEXT("--no-browser"), nullptr,
		TEXT("only prints the address, for a browser on another machine; so it is over ssh and without a desktop")},
	JsonOption,
	VerboseOption,
};
constexpr FOptionRow AccountOptions[] = {ServiceOption, JsonOption, VerboseOption};
constexpr FOptionRow ToolSaveOption = {
	TEXT("--save"), nullptr, TEXT("saves what was changed, also when items of a call failed (exit status 3)")};
constexpr FOptionRow ToolOptions[] = {
	{TEXT("--input"), TEXT("JSON|FILE|-"), TEXT("the tool's arguments, an object")},
	{TEXT("--calls"), TEXT("FILE|-"),
		TEXT("calls of many tools, a line of JSON each: {\"tool\": NAME, \"input\": {...}}, {\"undo\": N} or {\"redo\": N}")},
	ProjectOption,
	ToolSaveOption,
	JsonOption,
	VerboseOption,
};
constexpr FOptionRow ToolsOptions[] = {JsonOption};
constexpr FOptionRow GraphOptions[] = {BlueprintOption, GraphOption, ProjectOption, SaveOption, JsonOption, VerboseOption};
constexpr FOptionRow DiffOptions[] = {ProjectOption, JsonOption, VerboseOption};
constexpr FOptionRow GetOptions[] = {ProjectOption, JsonOption, VerboseOption};
constexpr FOptionRow SetOptions[] = {ProjectOption, SaveOption, JsonOption, VerboseOption};
constexpr FOptionRow InspectOptions[] = {JsonOption};
constexpr FOptionRow ServiceOptions[] = {
	{TEXT("--port"), TEXT("N"), TEXT("the port; a free one without it")},
	{TEXT("--data"), TEXT("DIR"), TEXT("where the service keeps its state; in memory without it")},
	VerboseOption,
};

const FCommandRow Commands[] = {
	{TEXT("chat"), TEXT("[--message TEXT]"), TEXT("a chat with the assistant about the project"), ChatOptions, 0, RunChatCommand},
	{TEXT("login"), TEXT("--service URL"), TEXT("a login at a service, in the browser"), LoginOptions, 0, RunLoginCommand},
	{TEXT("logout"), TEXT("--service URL"), TEXT("ends the login at a service and forgets it"), AccountOptions, 0, RunLogoutCommand},
	{TEXT("whoami"), TEXT("[--service URL]"), TEXT("who is logged in"), AccountOptions, 0, RunWhoamiCommand},
	{TEXT("tool"), TEXT("NAME --input JSON|FILE|- | --calls FILE|-"), TEXT("calls one tool as the assistant would, or many"), ToolOptions, 1,
		RunToolCommand},
	{TEXT("tools"), TEXT(""), TEXT("the tool table"), ToolsOptions, 0, RunToolsCommand},
	{TEXT("graph"), TEXT("show|export|import --blueprint PATH [FILE|-]"),
		TEXT("a graph as a picture in text; its node text out of it, or into it"), GraphOptions, 2,
		RunGraphCommand},
	{TEXT("diff"), TEXT("BEFORE AFTER"),
		TEXT("what differs between two Blueprints, each a file or one of the project; git can call it (Docs/Diff.md)"),
		DiffOptions, 7, RunDiffCommand},
	{TEXT("get"), TEXT("BLUEPRINT[:ADDRESS]"), TEXT("a value in a Blueprint, or the Blueprint, as the assistant reads it"), GetOptions, 1,
		RunGetCommand},
	{TEXT("set"), TEXT("BLUEPRINT:ADDRESS VALUE"), TEXT("gives a value in a Blueprint another one"), SetOptions, 2, RunSetCommand},
	{TEXT("inspect"), TEXT("FILE.uasset"), TEXT("the tables of a package file as JSON"), InspectOptions, 1, RunInspectCommand},
	{TEXT("service"), TEXT("[--port N] [--data DIR]"), TEXT("runs the local service"), ServiceOptions, 0, RunServiceCommand},
};
}

TConstArrayView<FCommandRow> GetCommands()
{
	return Commands;
}

TOptional<FString> ReadFileOrInput(const FString& Path)
{
	if (Path != TEXT("-"))
	{
		FString Text;
		if (FFileHelper::LoadFileToString(Text, *Path))
		{
			return Text;
		}
		FConsole::WriteError(FString::Printf(TEXT("the file '%s' cannot be read"), *Path));
		return NullOpt;
	}
	TArray<uint8> Bytes;
	uint8 Buffer[65536];
	while (const size_t NumRead = fread(Buffer, 1, sizeof(Buffer), stdin))
	{
		Bytes.Append(Buffer, int32(NumRead));
	}
	FString Text;
	FFileHelper::BufferToString(Text, Bytes.GetData(), Bytes.Num());
	return Text;
}

namespace
{
/** JSON escapes the first range of control characters by itself. The others stand inside strings alone, where an escape says the same. */
FString EscapeControls(const FString& Text)
{
	FString Escaped;
	Escaped.Reserve(Text.Len() + 1);
	for (const TCHAR Character : Text)
	{
		if (Character >= 0x7F && Character <= 0x9F)
		{
			Escaped += FString::Printf(TEXT("\\u%04x"), uint32(Character));
		}
		else
		{
			Escaped.AppendChar(Character);
		}
	}
	return Escaped;
}
}

void WriteJson(const TSharedRef<FJsonObject>& Object)
{
	FString Text;
	FVexelJsonConversions::JsonToPrettyString(Object, Text);
	FConsole::WriteData(EscapeControls(Text) + TEXT("\n"));
}

void WriteJsonLine(const TSharedRef<FJsonObject>& Object)
{
	FString Text;
	FVexelJsonConversions::JsonToString(Object, Text);
	FConsole::WriteData(EscapeControls(Text) + TEXT("\n"));
}
