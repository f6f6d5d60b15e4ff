#pragma once

#include "Assistant/Edits/EditRequest.h"

#include <string>
#include <vector>

namespace VexelService
{

/** Tells of wires that an edit has cost. */
void TellWarnings(FEditSession& Session, const FEditOutcome& Outcome);

/** Compiles the Blueprint, and others by their paths, and tells how that went. */
void TellCompile(FEditSession& Session, const std::vector<std::string>& Others = {});

/** Tells why something could not be done: the editor's words, and what they mean. */
void TellRefusal(FEditSession& Session, const std::string& What, const std::vector<std::string>& Errors);

/**
 * Tells what uses a member before it changes under them, in its Blueprint and in those that refer to that. Returns the paths of the
 * others.
 */
std::vector<std::string> TellUsesBefore(FEditSession& Session, const std::string& Name);

/** Tells how many wires lead from and to an input or an output of a function or an event, before it changes under them. */
void TellWiresBefore(FEditSession& Session, const FEditTarget& Target, const std::string& Name);

/** "float, default 100, category Stats". */
std::string DescribeVariable(const FBlueprintVariable& Variable);

/** "no elements", "Coin and Key", "100": a value as a sentence has it. */
std::string ShownValue(const std::string& Value, const std::string& TypeId);

}
