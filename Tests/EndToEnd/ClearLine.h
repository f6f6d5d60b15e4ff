#pragma once

#include "Program.h"

#include <algorithm>
#include <gmock/gmock.h>

/** Expects one line on standard error, said by vexel, with these words in it. */
inline void ExpectOneClearLine(const FProgramResult& Result, int Status, const std::string& Words)
{
	EXPECT_EQ(Result.Status, Status) << Result.Errors;
	EXPECT_THAT(Result.Errors, testing::StartsWith("vexel: "));
	EXPECT_THAT(Result.Errors, testing::HasSubstr(Words));
	EXPECT_EQ(std::count(Result.Errors.begin(), Result.Errors.end(), '\n'), 1) << Result.Errors;
}
