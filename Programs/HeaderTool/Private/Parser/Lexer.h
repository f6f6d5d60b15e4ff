#pragma once

#include "HeaderParser/Parser.h"

namespace HeaderParser
{
enum class ETokenKind : uint8_t
{
	Identifier,
	Number,
	/** Text keeps the quotes; FToken::StringValue is what stands between them. */
	String,
	Character,
	/** One character, or "::". */
	Symbol,
	End
};

struct FToken
{
	ETokenKind Kind = ETokenKind::End;
	/** A view into the header's text. */
	std::string_view Text;
	FPosition Position;
	/** The comments just before the token: from FComments::First, this many. */
	int32_t FirstComment = 0;
	int32_t NumComments = 0;
	/** Inside `#if WITH_EDITORONLY_DATA` or `#if WITH_EDITOR`. */
	bool bEditorOnlyData = false;
	bool bEditorOnly = false;

	[[nodiscard]] bool Is(std::string_view Expected) const { return Text == Expected && Kind != ETokenKind::String; }
	[[nodiscard]] bool IsIdentifier() const { return Kind == ETokenKind::Identifier; }
	/** Text of a string literal with its escapes undone, as UTF-8. */
	[[nodiscard]] std::string StringValue() const;
};

struct FComment
{
	/** With its slashes and stars. */
	std::string_view Text;
	FPosition Position;
	/** Something else stands before it on its line, so it does not speak of what follows. */
	bool bTrailing = false;
};

struct FTokenizedHeader
{
	/** Ends with a token of kind End. */
	std::vector<FToken> Tokens;
	std::vector<FComment> Comments;
	std::vector<std::string> Includes;
	std::vector<FDiagnostic> Errors;
};

/** Tokens of the text that is compiled, as far as the preprocessor's conditions can be told without its macros. */
[[nodiscard]] FTokenizedHeader Tokenize(std::string_view Text);

/** Whether a `#if` condition holds for a reader of declarations: CPP is false, WITH_EDITOR is true, an unknown name is true. */
[[nodiscard]] bool EvaluateCondition(std::string_view Condition);
}
