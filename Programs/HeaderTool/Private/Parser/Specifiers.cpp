#include "Parser/Specifiers.h"

namespace HeaderParser
{
namespace
{
bool ParseValue(FTokenCursor& Cursor, std::string& Out)
{
	if (Cursor.Peek().Kind == ETokenKind::String)
	{
		while (Cursor.Peek().Kind == ETokenKind::String)
		{
			Out += Cursor.Take().StringValue();
		}
		return true;
	}
	if (Cursor.Peek().Is("TEXT") && Cursor.Peek(1).Is("(") && Cursor.Peek(2).Kind == ETokenKind::String && Cursor.Peek(3).Is(")"))
	{
		Out = Cursor.Peek(2).StringValue();
		for (int32_t Count = 0; Count < 4; ++Count)
		{
			Cursor.Take();
		}
		return true;
	}
	return Cursor.TakeExpression(Out);
}

/** A key may hold dots: `meta = (EditCondition.Inverted = true)`. */
bool ParseKey(FTokenCursor& Cursor, std::string& Out, const std::string_view What)
{
	if (Cursor.Peek().Kind == ETokenKind::String)
	{
		Out = Cursor.Take().StringValue();
		return true;
	}
	if (!Cursor.ExpectIdentifier(Out, What))
	{
		return false;
	}
	while (Cursor.Peek().Is(".") || Cursor.Peek().Is("::") || Cursor.Peek().Is("-"))
	{
		Out += Cursor.Take().Text;
		std::string Part;
		if (!Cursor.ExpectIdentifier(Part, What))
		{
			return false;
		}
		Out += Part;
	}
	return true;
}

bool ParseMetaData(FTokenCursor& Cursor, FMetaData& Out)
{
	if (!Cursor.Expect("("))
	{
		return false;
	}
	while (!Cursor.TakeIf(")"))
	{
		std::string Key;
		std::string Value;
		if (!ParseKey(Cursor, Key, "a metadata key") || (Cursor.TakeIf("=") && !ParseValue(Cursor, Value)))
		{
			return false;
		}
		Out.Set(Key, Value);
		if (!Cursor.TakeIf(",") && !Cursor.Peek().Is(")"))
		{
			return Cursor.FailExpected("',' or ')'");
		}
	}
	return true;
}

bool ParseValueList(FTokenCursor& Cursor, std::vector<std::string>& Out)
{
	if (!Cursor.TakeIf("("))
	{
		return ParseValue(Cursor, Out.emplace_back());
	}
	while (!Cursor.TakeIf(")"))
	{
		if (!ParseValue(Cursor, Out.emplace_back()))
		{
			return false;
		}
		if (!Cursor.TakeIf(",") && !Cursor.Peek().Is(")"))
		{
			return Cursor.FailExpected("',' or ')'");
		}
	}
	return true;
}

std::string_view TrimRight(std::string_view Text)
{
	while (!Text.empty() && (Text.back() == ' ' || Text.back() == '\t' || Text.back() == '\r' || Text.back() == '\n'))
	{
		Text.remove_suffix(1);
	}
	return Text;
}

std::string_view TrimLeft(std::string_view Text)
{
	while (!Text.empty() && (Text.front() == ' ' || Text.front() == '\t'))
	{
		Text.remove_prefix(1);
	}
	return Text;
}

/** A line of nothing but signs, `-----`, which sets off a comment for the eye. */
bool IsRuler(const std::string_view Line) { return Line.size() > 2 && Line.find_first_not_of("-=*/~#") == std::string_view::npos; }

std::string_view WithoutMarks(std::string_view Line, const bool bBlock, const bool bFirst)
{
	if (!bBlock || bFirst)
	{
		const std::string_view Start = TrimLeft(Line);
		if (Start.substr(0, 2) == "//" || Start.substr(0, 2) == "/*")
		{
			Line = Start.substr(2);
			while (!Line.empty() && (Line.front() == '/' || Line.front() == '*' || Line.front() == '!'))
			{
				Line.remove_prefix(1);
			}
			return TrimRight(TrimLeft(Line));
		}
	}
	const std::string_view Start = TrimLeft(Line);
	if (bBlock && !Start.empty() && Start.front() == '*')
	{
		Line = Start.substr(1);
		if (!Line.empty() && Line.front() == ' ')
		{
			Line.remove_prefix(1);
		}
	}
	return TrimRight(Line);
}

size_t IndentOf(const std::string_view Line) { return std::min(Line.find_first_not_of(" \t"), Line.size()); }

/** `// Package: X` and its like speak to the reader of the header, not of a declaration. */
bool IsDirective(const std::string_view Comment)
{
	const std::string_view Text = TrimLeft(Comment.substr(2));
	return Text.substr(0, 8) == "Package:" || Text.substr(0, 10) == "Initially:" || TrimRight(Text) == "Extends native";
}

/** The comment lines that speak of the token: the last block comment, or the last unbroken run of line comments. */
std::string CommentTextBefore(const FTokenCursor& Cursor, const FToken& Token)
{
	const std::vector<FComment>& Comments = Cursor.GetHeader().Comments;
	int32_t FirstOfRun = -1;
	int32_t LastOfRun = -1;
	for (int32_t Index = Token.FirstComment + Token.NumComments - 1; Index >= Token.FirstComment; --Index)
	{
		const FComment& Comment = Comments[static_cast<size_t>(Index)];
		if (LastOfRun < 0 && IsDirective(Comment.Text))
		{
			continue;
		}
		// `//~` comments are notes for the reader of the source.
		if (Comment.bTrailing || Comment.Text.substr(0, 3) == "//~")
		{
			break;
		}
		if (Comment.Text.substr(0, 2) == "/*")
		{
			if (LastOfRun < 0)
			{
				return std::string(Comment.Text);
			}
			break;
		}
		const bool bTouches = LastOfRun < 0 || Comment.Position.Line + 1 == Comments[static_cast<size_t>(Index) + 1].Position.Line;
		if (!bTouches)
		{
			break;
		}
		FirstOfRun = Index;
		LastOfRun = LastOfRun < 0 ? Index : LastOfRun;
	}
	std::string Text;
	for (int32_t Index = FirstOfRun; Index >= 0 && Index <= LastOfRun; ++Index)
	{
		Text += (Index == FirstOfRun ? "" : "\n") + std::string(Comments[static_cast<size_t>(Index)].Text);
	}
	return Text;
}
}

bool ParseSpecifiers(FTokenCursor& Cursor, FSpecifierList& Out)
{
	if (!Cursor.Expect("("))
	{
		return false;
	}
	while (!Cursor.TakeIf(")"))
	{
		FSpecifier Specifier;
		Specifier.Position = Cursor.Peek().Position;
		if (!ParseKey(Cursor, Specifier.Name, "a specifier"))
		{
			return false;
		}
		if (Cursor.TakeIf("="))
		{
			const bool bMetaData = EqualsIgnoringCase(Specifier.Name, "meta");
			if (bMetaData ? !ParseMetaData(Cursor, Out.MetaData) : !ParseValueList(Cursor, Specifier.Values))
			{
				return false;
			}
			if (!bMetaData)
			{
				Out.Specifiers.push_back(std::move(Specifier));
			}
		}
		else
		{
			// `ServiceRequest(Name)`: arguments without the equals sign.
			if (Cursor.Peek().Is("(") && !ParseValueList(Cursor, Specifier.Values))
			{
				return false;
			}
			Out.Specifiers.push_back(std::move(Specifier));
		}
		if (!Cursor.TakeIf(",") && !Cursor.Peek().Is(")"))
		{
			return Cursor.FailExpected("',' or ')'");
		}
	}
	return true;
}

std::string CleanComment(const std::string_view Comment)
{
	const bool bBlock = Comment.substr(0, 2) == "/*";
	std::string_view Body = Comment;
	if (bBlock && Body.size() >= 4)
	{
		Body.remove_suffix(2);
		while (Body.size() > 2 && Body.back() == '*')
		{
			Body.remove_suffix(1);
		}
	}
	std::vector<std::string_view> Lines;
	size_t Start = 0;
	while (Start <= Body.size())
	{
		const size_t End = std::min(Body.find('\n', Start), Body.size());
		const std::string_view Line = WithoutMarks(Body.substr(Start, End - Start), bBlock, Lines.empty() && Start == 0);
		Lines.push_back(IsRuler(TrimLeft(Line)) ? std::string_view() : Line);
		Start = End + 1;
	}
	while (!Lines.empty() && TrimLeft(Lines.front()).empty())
	{
		Lines.erase(Lines.begin());
	}
	while (!Lines.empty() && Lines.back().empty())
	{
		Lines.pop_back();
	}
	size_t CommonIndent = std::string_view::npos;
	for (size_t Index = 1; Index < Lines.size(); ++Index)
	{
		CommonIndent = Lines[Index].empty() ? CommonIndent : std::min(CommonIndent, IndentOf(Lines[Index]));
	}
	std::string Text;
	for (size_t Index = 0; Index < Lines.size(); ++Index)
	{
		const std::string_view Line = Lines[Index];
		Text += Index == 0 ? "" : "\n";
		Text += Index == 0 ? TrimLeft(Line) : Line.substr(std::min(CommonIndent, Line.size()));
	}
	return Text;
}

void AddToolTip(const FTokenCursor& Cursor, const FToken& Token, FMetaData& MetaData)
{
	if (MetaData.Has("ToolTip"))
	{
		return;
	}
	const std::string Comment = CommentTextBefore(Cursor, Token);
	const std::string ToolTip = Comment.empty() ? "" : CleanComment(Comment);
	if (!ToolTip.empty())
	{
		MetaData.Set("ToolTip", ToolTip);
	}
}

std::optional<std::string> FindDirective(const FTokenCursor& Cursor, const FToken& Token, const std::string_view Key)
{
	for (int32_t Index = 0; Index < Token.NumComments; ++Index)
	{
		const std::string_view Comment = Cursor.GetHeader().Comments[static_cast<size_t>(Token.FirstComment + Index)].Text;
		if (Comment.substr(0, 2) != "//")
		{
			continue;
		}
		const std::string_view Text = TrimRight(TrimLeft(Comment.substr(2)));
		if (Text == Key)
		{
			return std::string();
		}
		if (Text.size() > Key.size() && Text.substr(0, Key.size()) == Key && Text[Key.size()] == ':')
		{
			return std::string(TrimLeft(Text.substr(Key.size() + 1)));
		}
	}
	return std::nullopt;
}
}
