#include "Parser/Lexer.h"

#include <algorithm>

namespace HeaderParser
{
namespace
{
bool IsIdentifierStart(const char Character)
{
	const unsigned char Byte = static_cast<unsigned char>(Character);
	return (Byte >= 'a' && Byte <= 'z') || (Byte >= 'A' && Byte <= 'Z') || Byte == '_' || Byte >= 0x80;
}

bool IsDigit(const char Character) { return Character >= '0' && Character <= '9'; }

bool IsIdentifierPart(const char Character) { return IsIdentifierStart(Character) || IsDigit(Character); }

bool IsSpace(const char Character)
{
	return Character == ' ' || Character == '\t' || Character == '\r' || Character == '\n' || Character == '\v' || Character == '\f';
}

std::string_view Trim(std::string_view Text)
{
	while (!Text.empty() && IsSpace(Text.front()))
	{
		Text.remove_prefix(1);
	}
	while (!Text.empty() && IsSpace(Text.back()))
	{
		Text.remove_suffix(1);
	}
	return Text;
}

struct FCondition
{
	bool bActive = true;
	/** A branch of this `#if` was taken already. */
	bool bTaken = true;
	bool bEditorOnlyData = false;
	bool bEditorOnly = false;
};

class FLexer
{
public:
	explicit FLexer(const std::string_view InText)
		: Text(InText)
	{
	}

	FTokenizedHeader Run()
	{
		if (Text.substr(0, 3) == "\xEF\xBB\xBF")
		{
			Offset = 3;
		}
		while (Result.Errors.empty() && SkipBlank())
		{
			if (Peek() == '#' && bLineStart)
			{
				ReadDirective();
			}
			else
			{
				ReadToken();
			}
		}
		if (Result.Errors.empty() && !Conditions.empty())
		{
			Fail("expected #endif, found the end of the file");
		}
		AddToken(ETokenKind::End, Text.size());
		return std::move(Result);
	}

private:
	[[nodiscard]] char Peek(const size_t Ahead = 0) const { return Offset + Ahead < Text.size() ? Text[Offset + Ahead] : '\0'; }
	[[nodiscard]] bool AtEnd() const { return Offset >= Text.size(); }
	[[nodiscard]] bool IsActive() const { return Conditions.empty() || Conditions.back().bActive; }

	void Advance()
	{
		const unsigned char Byte = static_cast<unsigned char>(Text[Offset++]);
		if (Byte == '\n')
		{
			++Position.Line;
			Position.Column = 1;
			bLineStart = true;
		}
		else if ((Byte & 0xC0) != 0x80)
		{
			++Position.Column;
		}
	}

	void AdvanceTo(const size_t End)
	{
		while (Offset < End && !AtEnd())
		{
			Advance();
		}
	}

	void Fail(std::string Message) { Result.Errors.push_back({Position, std::move(Message)}); }

	/** Passes over white space and comments. False at the end of the text. */
	bool SkipBlank()
	{
		while (!AtEnd())
		{
			if (IsSpace(Peek()) || (Peek() == '\\' && (Peek(1) == '\n' || Peek(1) == '\r')))
			{
				Advance();
			}
			else if (Peek() == '/' && (Peek(1) == '/' || Peek(1) == '*'))
			{
				ReadComment();
			}
			else
			{
				return true;
			}
		}
		return false;
	}

	void ReadComment()
	{
		const bool bBlock = Peek(1) == '*';
		const size_t Found = bBlock ? Text.find("*/", Offset + 2) : Text.find('\n', Offset);
		if (bBlock && Found == std::string_view::npos)
		{
			Fail("expected */, found the end of the file");
			Offset = Text.size();
			return;
		}
		const size_t End = Found == std::string_view::npos ? Text.size() : Found + (bBlock ? 2 : 0);
		if (IsActive())
		{
			Result.Comments.push_back({Text.substr(Offset, End - Offset), Position, !bLineStart});
		}
		const bool bWasLineStart = bLineStart;
		const int32_t Line = Position.Line;
		AdvanceTo(End);
		bLineStart = bWasLineStart || Position.Line != Line;
	}

	/** End of the directive's logical line; comments inside it are part of the returned text. */
	[[nodiscard]] size_t FindDirectiveEnd() const
	{
		size_t End = Offset;
		while (true)
		{
			End = Text.find('\n', End);
			if (End == std::string_view::npos)
			{
				return Text.size();
			}
			size_t Last = End;
			while (Last > Offset && (Text[Last - 1] == '\r' || Text[Last - 1] == ' ' || Text[Last - 1] == '\t'))
			{
				--Last;
			}
			if (Last == Offset || Text[Last - 1] != '\\')
			{
				return End;
			}
			++End;
		}
	}

	void ReadDirective()
	{
		const size_t End = FindDirectiveEnd();
		std::string_view Line = Trim(Text.substr(Offset + 1, End - Offset - 1));
		size_t NameEnd = 0;
		while (NameEnd < Line.size() && IsIdentifierPart(Line[NameEnd]))
		{
			++NameEnd;
		}
		const std::string_view Name = Line.substr(0, NameEnd);
		std::string_view Rest = Trim(Line.substr(NameEnd));
		// A comment behind a directive is no part of it, except in an include's text, where it cannot stand.
		Rest = Trim(Rest.substr(0, std::min(Rest.find("//"), Rest.find("/*"))));
		if (ApplyDirective(Name, Rest))
		{
			AdvanceTo(End);
		}
	}

	bool ApplyDirective(const std::string_view Name, const std::string_view Rest)
	{
		if (Name == "if" || Name == "ifdef" || Name == "ifndef")
		{
			PushCondition(Name == "if" ? EvaluateCondition(Rest) : true, Rest);
		}
		else if (Name == "elif" || Name == "else" || Name == "endif")
		{
			if (Conditions.empty())
			{
				Fail("expected #if before #" + std::string(Name));
				return false;
			}
			NextBranch(Name, Rest);
		}
		else if (Name == "include" && IsActive() && Rest.size() > 2 && Rest.front() == '"')
		{
			Result.Includes.emplace_back(Rest.substr(1, Rest.find('"', 1) - 1));
		}
		return true;
	}

	void PushCondition(const bool bHolds, const std::string_view Text)
	{
		FCondition Condition;
		if (!Conditions.empty())
		{
			Condition.bEditorOnlyData = Conditions.back().bEditorOnlyData;
			Condition.bEditorOnly = Conditions.back().bEditorOnly;
		}
		Condition.bActive = IsActive() && bHolds;
		// Nothing of an inactive parent is read, whichever branch it is.
		Condition.bTaken = bHolds || !IsActive();
		Condition.bEditorOnlyData |= Text.find("WITH_EDITORONLY_DATA") != std::string_view::npos;
		Condition.bEditorOnly |= Text == "WITH_EDITOR";
		Conditions.push_back(Condition);
	}

	void NextBranch(const std::string_view Name, const std::string_view Rest)
	{
		if (Name == "endif")
		{
			Conditions.pop_back();
			return;
		}
		FCondition& Condition = Conditions.back();
		Condition.bActive = !Condition.bTaken && (Name == "else" || EvaluateCondition(Rest));
		Condition.bTaken |= Condition.bActive;
		Condition.bEditorOnly = false;
		Condition.bEditorOnlyData = false;
	}

	void ReadToken()
	{
		bLineStart = false;
		const char First = Peek();
		if (!IsActive())
		{
			SkipInactive(First);
		}
		else if (IsIdentifierStart(First))
		{
			ReadIdentifier();
		}
		else if (IsDigit(First) || (First == '.' && IsDigit(Peek(1))))
		{
			AddToken(ETokenKind::Number, FindNumberEnd());
		}
		else if (First == '"' || First == '\'')
		{
			ReadQuoted(Offset);
		}
		else
		{
			AddToken(ETokenKind::Symbol, Offset + (First == ':' && Peek(1) == ':' ? 2 : 1));
		}
	}

	/** In text that is not compiled an apostrophe need not have a partner. */
	void SkipInactive(const char First)
	{
		const size_t Close = First == '"' ? Text.find_first_of("\"\n", Offset + 1) : std::string_view::npos;
		AdvanceTo(Close == std::string_view::npos || Text[Close] == '\n' ? Offset + 1 : Close + 1);
	}

	void ReadIdentifier()
	{
		size_t End = Offset;
		while (End < Text.size() && IsIdentifierPart(Text[End]))
		{
			++End;
		}
		const std::string_view Word = Text.substr(Offset, End - Offset);
		const bool bQuoteFollows = End < Text.size() && Text[End] == '"';
		if (bQuoteFollows && (Word == "R" || Word == "LR" || Word == "uR" || Word == "u8R"))
		{
			ReadRawString(End);
		}
		else if (bQuoteFollows && (Word == "L" || Word == "u" || Word == "U" || Word == "u8"))
		{
			ReadQuoted(End);
		}
		else
		{
			AddToken(ETokenKind::Identifier, End);
		}
	}

	void ReadRawString(const size_t Quote)
	{
		const size_t Open = Text.find('(', Quote);
		const bool bDelimiterFits = Open != std::string_view::npos && Open - Quote <= 17;
		const std::string Close = bDelimiterFits ? ")" + std::string(Text.substr(Quote + 1, Open - Quote - 1)) + "\"" : "";
		const size_t Found = bDelimiterFits ? Text.find(Close, Open) : std::string_view::npos;
		if (Found == std::string_view::npos)
		{
			Fail("expected the end of the raw string");
			return;
		}
		AddToken(ETokenKind::String, Found + Close.size());
	}

	void ReadQuoted(const size_t QuoteOffset)
	{
		const char Quote = Text[QuoteOffset];
		for (size_t End = QuoteOffset + 1; End < Text.size() && Text[End] != '\n'; ++End)
		{
			if (Text[End] == '\\')
			{
				++End;
			}
			else if (Text[End] == Quote)
			{
				AddToken(Quote == '"' ? ETokenKind::String : ETokenKind::Character, End + 1);
				return;
			}
		}
		Fail(std::string("expected ") + Quote + " before the end of the line");
	}

	[[nodiscard]] size_t FindNumberEnd() const
	{
		size_t End = Offset;
		const bool bHexadecimal = Peek() == '0' && (Peek(1) == 'x' || Peek(1) == 'X');
		while (End < Text.size())
		{
			const char Character = Text[End];
			const bool bSeparator = Character == '\'' && End + 1 < Text.size() && IsIdentifierPart(Text[End + 1]);
			const bool bExponentSign =
				(Character == '+' || Character == '-') && !bHexadecimal && (Text[End - 1] == 'e' || Text[End - 1] == 'E');
			if (!IsIdentifierPart(Character) && Character != '.' && !bSeparator && !bExponentSign)
			{
				break;
			}
			++End;
		}
		return End;
	}

	void AddToken(const ETokenKind Kind, const size_t End)
	{
		FToken Token;
		Token.Kind = Kind;
		Token.Text = Text.substr(Offset, End - Offset);
		Token.Position = Position;
		Token.FirstComment = NextComment;
		Token.NumComments = static_cast<int32_t>(Result.Comments.size()) - NextComment;
		NextComment = static_cast<int32_t>(Result.Comments.size());
		if (!Conditions.empty())
		{
			Token.bEditorOnlyData = Conditions.back().bEditorOnlyData;
			Token.bEditorOnly = Conditions.back().bEditorOnly;
		}
		Result.Tokens.push_back(Token);
		AdvanceTo(End);
		bLineStart = false;
	}

	std::string_view Text;
	size_t Offset = 0;
	FPosition Position{1, 1};
	/** Nothing but white space and comments stands before Offset on its line. */
	bool bLineStart = true;
	int32_t NextComment = 0;
	std::vector<FCondition> Conditions;
	FTokenizedHeader Result;
};

/** Reads `A && (!B || defined(C))`. */
class FConditionEvaluator
{
public:
	explicit FConditionEvaluator(const std::string_view InText)
		: Text(InText)
	{
	}

	bool Or()
	{
		bool bValue = And();
		while (Take("||"))
		{
			const bool bRight = And();
			bValue = bValue || bRight;
		}
		return bValue;
	}

private:
	bool And()
	{
		bool bValue = Not();
		while (Take("&&"))
		{
			const bool bRight = Not();
			bValue = bValue && bRight;
		}
		return bValue;
	}

	bool Not()
	{
		bool bNegated = false;
		while (Take("!"))
		{
			bNegated = !bNegated;
		}
		// A comparison of unknown names, `ENGINE_MAJOR_VERSION >= 5`, is as true as an unknown name.
		const bool bValue = Primary();
		return bValue != bNegated;
	}

	bool Primary()
	{
		if (Depth < 100 && Take("("))
		{
			++Depth;
			const bool bValue = Or();
			Take(")");
			--Depth;
			return bValue;
		}
		const std::string_view Word = TakeOperand();
		return Word != "0" && Word != "CPP" && Word != "UE_BUILD_SHIPPING" && Word != "false";
	}

	std::string_view TakeOperand()
	{
		SkipSpace();
		size_t End = 0;
		while (End < Text.size() && Text[End] != ')' && Text.substr(End, 2) != "&&" && Text.substr(End, 2) != "||")
		{
			++End;
		}
		std::string_view Operand = Trim(Text.substr(0, End));
		Text.remove_prefix(End);
		if (Operand.find('(') != std::string_view::npos)
		{
			Take(")");
		}
		return Operand;
	}

	bool Take(const std::string_view Symbol)
	{
		SkipSpace();
		if (Text.substr(0, Symbol.size()) != Symbol)
		{
			return false;
		}
		Text.remove_prefix(Symbol.size());
		return true;
	}

	void SkipSpace() { Text = Trim(Text); }

	std::string_view Text;
	int32_t Depth = 0;
};

int32_t HexDigit(const char Character)
{
	if (IsDigit(Character))
	{
		return Character - '0';
	}
	const char Lower = static_cast<char>(Character | 0x20);
	return Lower >= 'a' && Lower <= 'f' ? Lower - 'a' + 10 : -1;
}

void AppendUtf8(std::string& Out, const uint32_t Code)
{
	const auto Append = [&Out](const uint32_t Byte)
	{ Out += static_cast<char>(Byte); };
	if (Code < 0x80)
	{
		Append(Code);
	}
	else if (Code < 0x800)
	{
		Append(0xC0 | (Code >> 6));
		Append(0x80 | (Code & 0x3F));
	}
	else if (Code < 0x10000)
	{
		Append(0xE0 | (Code >> 12));
		Append(0x80 | ((Code >> 6) & 0x3F));
		Append(0x80 | (Code & 0x3F));
	}
	else
	{
		Append(0xF0 | ((Code >> 18) & 0x07));
		Append(0x80 | ((Code >> 12) & 0x3F));
		Append(0x80 | ((Code >> 6) & 0x3F));
		Append(0x80 | (Code & 0x3F));
	}
}

/** Reads the escape whose letter stands at Index; leaves Index at its last character. */
void AppendEscape(std::string& Out, const std::string_view Text, size_t& Index)
{
	static constexpr std::string_view Letters = "ntrab0vf";
	static constexpr std::string_view Values("\n\t\r\a\b\0\v\f", 8);
	const char Letter = Text[Index];
	if (Letter == 'x' || Letter == 'u' || Letter == 'U')
	{
		const size_t MaxDigits = Letter == 'u' ? 4 : 8;
		uint32_t Code = 0;
		for (size_t Digits = 0; Digits < MaxDigits && Index + 1 < Text.size() && HexDigit(Text[Index + 1]) >= 0; ++Digits)
		{
			Code = Code * 16 + static_cast<uint32_t>(HexDigit(Text[++Index]));
		}
		AppendUtf8(Out, Code);
		return;
	}
	const size_t Known = Letters.find(Letter);
	Out += Known == std::string_view::npos ? Letter : Values[Known];
}
}

std::string FToken::StringValue() const
{
	const size_t Quote = Text.find('"');
	if (Quote > 0 && Text[Quote - 1] == 'R')
	{
		const size_t Open = Text.find('(', Quote);
		const size_t Close = Text.rfind(')');
		return std::string(Text.substr(Open + 1, Close - Open - 1));
	}
	const std::string_view Body = Text.substr(Quote + 1, Text.size() - Quote - 2);
	std::string Value;
	for (size_t Index = 0; Index < Body.size(); ++Index)
	{
		if (Body[Index] == '\\' && Index + 1 < Body.size())
		{
			AppendEscape(Value, Body, ++Index);
		}
		else
		{
			Value += Body[Index];
		}
	}
	return Value;
}

FTokenizedHeader Tokenize(const std::string_view Text) { return FLexer(Text).Run(); }

bool EvaluateCondition(const std::string_view Condition)
{
	// A condition may go on behind a backslash at the end of its line.
	std::string Line(Condition);
	std::replace(Line.begin(), Line.end(), '\\', ' ');
	return FConditionEvaluator(Line).Or();
}
}
