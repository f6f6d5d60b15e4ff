#pragma once

#include "Arguments.h"
#include "CoreMinimal.h"

class FJsonObject;
class FStyledLine;
class UBlueprint;
class UEdGraph;

/** One command of the program: its words, its options, and the function that carries it out and answers the exit status. */
struct FCommandRow
{
	const TCHAR* Name;
	/** What stands behind the name in the help. */
	const TCHAR* Usage;
	const TCHAR* Help;
	TConstArrayView<FOptionRow> Options;
	int32 MaxPositional;
	int32 (*Run)(const FArguments& Arguments);
};

/** All commands, in the order of the help. */
TConstArrayView<FCommandRow> GetCommands();

int32 RunChatCommand(const FArguments& Arguments);
int32 RunDiffCommand(const FArguments& Arguments);
int32 RunGetCommand(const FArguments& Arguments);
int32 RunGraphCommand(const FArguments& Arguments);
int32 RunInspectCommand(const FArguments& Arguments);
int32 RunLoginCommand(const FArguments& Arguments);
int32 RunLogoutCommand(const FArguments& Arguments);
int32 RunServiceCommand(const FArguments& Arguments);
int32 RunSetCommand(const FArguments& Arguments);
int32 RunToolCommand(const FArguments& Arguments);
int32 RunToolsCommand(const FArguments& Arguments);
int32 RunWhoamiCommand(const FArguments& Arguments);

/** Reads an argument that names a file, or standard input as "-". Answers nothing, with the reason on standard error, on failure. */
TOptional<FString> ReadFileOrInput(const FString& Path);

/** Writes a JSON object to standard output over several lines. */
void WriteJson(const TSharedRef<FJsonObject>& Object);

/** Writes a JSON object to standard output on one line. */
void WriteJsonLine(const TSharedRef<FJsonObject>& Object);

/** A picture of a graph, as DrawGraph made it, for another program. */
TSharedRef<FJsonObject> MakeGraphDocument(const UBlueprint& Blueprint, const UEdGraph& Graph, const TArray<FStyledLine>& Lines);
