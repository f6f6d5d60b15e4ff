#pragma once

#include "Assistant/Edits/EditPlan.h"
#include "Assistant/Edits/EditRun.h"

#include <string>
#include <vector>

namespace VexelService
{

/** An editor's error in its own words, without what they repeat. */
std::string PlainError(const std::string& Error);

/** What the compiler says, in words and with what to do about it; or why the editor did not compile. */
std::string DescribeCompile(const FCompileOutcome& Outcome, const std::string& Blueprint);

/** Why an edit was not done, and what is left of it. */
std::string DescribeFailure(const FRunOutcome& Outcome);

}
