#include "MarkdownLines.h"

#include "Containers/StringConv.h"
#include "TableLines.h"

#include <cstring>
#include <md4c.h>

namespace
{
constexpr int32 MinTextWidth = 8;
constexpr unsigned Dialect = MD_FLAG_TABLES | MD_FLAG_STRIKETHROUGH | MD_FLAG_TASKLISTS | MD_FLAG_NOHTML | MD_FLAG_COLLAPSEWHITESPACE;

/** A quote or a list item: what stands in front of its first line, and of each other. */
struct FContainer
{
	FStyledLine First;
	FStyledLine Rest;
	bool bFirstUsed = false;
};

struct FList
{
	bool bOrdered = false;
	bool bTight = true;
	uint32 NextNumber = 1;
	int32 NumItems = 0;
};

struct FEntity
{
	const char* Name;
	const TCHAR* Text;
};

constexpr FEntity Entities[] = {
	{"&lt;", TEXT("<")},
	{"&gt;", TEXT(">")},
	{"&amp;", TEXT("&")},
	{"&quot;", TEXT("\"")},
	{"&apos;", TEXT("'")},
	{"&nbsp;", TEXT(" ")},
	{"&hellip;", TEXT("…")},
	{"&ndash;", TEXT("–")},
	{"&mdash;", TEXT("—")},
	{"&larr;", TEXT("←")},
	{"&rarr;", TEXT("→")},
	{"&times;", TEXT("×")},
	{"&deg;", TEXT("°")},
};

FString FromUtf8(const char* Text, size_t Size)
{
	const FUTF8ToTCHAR Converted(Text, int32(Size));
	return FString(FStringView(Converted.Get(), Converted.Length()));
}

FString FromAttribute(const MD_ATTRIBUTE& Attribute)
{
	return Attribute.text ? FromUtf8(Attribute.text, Attribute.size) : FString();
}

/** "&lt;" and "&#60;" as what they stand for; one that is not known as it is. */
FString DecodeEntity(const char* Text, size_t Size)
{
	for (const FEntity& Entity : Entities)
	{
		if (Size == strlen(Entity.Name) && memcmp(Text, Entity.Name, Size) == 0)
		{
			return Entity.Text;
		}
	}
	if (Size < 4 || Text[1] != '#')
	{
		return FromUtf8(Text, Size);
	}
	const bool bHex = Text[2] == 'x' || Text[2] == 'X';
	const std::string Digits(Text + (bHex ? 3 : 2), Text + Size - 1);
	const unsigned long Code = strtoul(Digits.c_str(), nullptr, bHex ? 16 : 10);
	// A styled line takes the control characters out, however they were written.
	FString Character;
	AppendCodePoint(Character, Code > 0 && Code <= 0x10FFFF ? char32_t(Code) : U'\xFFFD');
	return Character;
}

class FMarkdownRenderer
{
public:
	explicit FMarkdownRenderer(int32 InWidth)
		: Width(FMath::Max(InWidth, MinTextWidth))
	{
	}

	TArray<FStyledLine> Render(FStringView Text)
	{
		MD_PARSER Parser = {};
		Parser.flags = Dialect;
		Parser.enter_block = [](MD_BLOCKTYPE Type, void* Detail, void* Self)
		{ return static_cast<FMarkdownRenderer*>(Self)->EnterBlock(Type, Detail), 0; };
		Parser.leave_block = [](MD_BLOCKTYPE Type, void*, void* Self)
		{ return static_cast<FMarkdownRenderer*>(Self)->LeaveBlock(Type), 0; };
		Parser.enter_span = [](MD_SPANTYPE Type, void* Detail, void* Self)
		{ return static_cast<FMarkdownRenderer*>(Self)->EnterSpan(Type, Detail), 0; };
		Parser.leave_span = [](MD_SPANTYPE Type, void*, void* Self)
		{ return static_cast<FMarkdownRenderer*>(Self)->LeaveSpan(Type), 0; };
		Parser.text = [](MD_TEXTTYPE Type, const MD_CHAR* Characters, MD_SIZE Size, void* Self)
		{ return static_cast<FMarkdownRenderer*>(Self)->AddText(Type, Characters, Size), 0; };
		const FTCHARToUTF8 Utf8(Text.GetData(), Text.Len());
		md_parse(Utf8.Get(), MD_SIZE(Utf8.Length()), &Parser, this);
		return MoveTemp(Lines);
	}

private:
	void EnterBlock(MD_BLOCKTYPE Type, void* Detail)
	{
		switch (Type)
		{
			case MD_BLOCK_QUOTE:
				AddGap(true);
				Containers.Add({.First = FStyledLine(TEXT("▌ "), TextStyle::Faint), .Rest = FStyledLine(TEXT("▌ "), TextStyle::Faint)});
				break;
			case MD_BLOCK_UL:
				FlushText();
				Lists.Add({.bTight = static_cast<MD_BLOCK_UL_DETAIL*>(Detail)->is_tight != 0});
				break;
			case MD_BLOCK_OL:
				FlushText();
				Lists.Add({.bOrdered = true,
					.bTight = static_cast<MD_BLOCK_OL_DETAIL*>(Detail)->is_tight != 0,
					.NextNumber = static_cast<MD_BLOCK_OL_DETAIL*>(Detail)->start});
				break;
			case MD_BLOCK_LI:
				BeginItem(*static_cast<MD_BLOCK_LI_DETAIL*>(Detail));
				break;
			case MD_BLOCK_HR:
				AddGap(true);
				AddLine(FStyledLine(FString::ChrN(FMath::Max(GetInnerWidth(), 3), TCHAR(0x2500)), TextStyle::Faint));
				bGapWanted = true;
				break;
			case MD_BLOCK_H:
				BeginText(static_cast<MD_BLOCK_H_DETAIL*>(Detail)->level <= 2 ? TextStyle::Title : TextStyle::Strong);
				break;
			case MD_BLOCK_P:
				BeginText(TextStyle::Plain);
				break;
			case MD_BLOCK_CODE:
				AddGap(true);
				bInCode = true;
				break;
			case MD_BLOCK_TABLE:
				AddGap(true);
				Table = FTextTable();
				bInTable = true;
				break;
			case MD_BLOCK_TR:
				Table.Rows.AddDefaulted();
				break;
			case MD_BLOCK_TH:
			case MD_BLOCK_TD:
				BeginCell(Type == MD_BLOCK_TH, static_cast<MD_BLOCK_TD_DETAIL*>(Detail)->align);
				break;
			default:
				break;
		}
	}

	void LeaveBlock(MD_BLOCKTYPE Type)
	{
		switch (Type)
		{
			case MD_BLOCK_QUOTE:
			case MD_BLOCK_LI:
				FlushText();
				Containers.Pop();
				bGapWanted = Type == MD_BLOCK_QUOTE;
				break;
			case MD_BLOCK_UL:
			case MD_BLOCK_OL:
				Lists.Pop();
				bGapWanted = Lists.IsEmpty();
				break;
			case MD_BLOCK_H:
			case MD_BLOCK_P:
				FlushText();
				bGapWanted = true;
				break;
			case MD_BLOCK_CODE:
				bInCode = false;
				AddCode();
				bGapWanted = true;
				break;
			case MD_BLOCK_TABLE:
				for (const FStyledLine& Line : RenderTable(Table, GetInnerWidth()))
				{
					AddLine(Line);
				}
				bInTable = false;
				bGapWanted = true;
				break;
			case MD_BLOCK_TH:
			case MD_BLOCK_TD:
				Table.Rows.Last().Add(MoveTemp(Text));
				Text = FStyledLine();
				Styles.Reset();
				break;
			default:
				break;
		}
	}

	void EnterSpan(MD_SPANTYPE Type, void* Detail)
	{
		FTextStyle Style = GetStyle();
		switch (Type)
		{
			case MD_SPAN_EM:
				Style.bItalic = true;
				break;
			case MD_SPAN_STRONG:
				Style.bBold = true;
				break;
			case MD_SPAN_DEL:
				Style.bStruck = true;
				break;
			case MD_SPAN_CODE:
				Style.Color = TextStyle::Code.Color;
				break;
			case MD_SPAN_A:
				Style.bUnderlined = true;
				Targets.Add({FromAttribute(static_cast<MD_SPAN_A_DETAIL*>(Detail)->href), Text.GetCells().Num()});
				break;
			case MD_SPAN_IMG:
				Targets.Add({FromAttribute(static_cast<MD_SPAN_IMG_DETAIL*>(Detail)->src), Text.GetCells().Num()});
				break;
			default:
				break;
		}
		Styles.Add(Style);
	}

	void LeaveSpan(MD_SPANTYPE Type)
	{
		if (!Styles.IsEmpty())
		{
			Styles.Pop();
		}
		if ((Type == MD_SPAN_A || Type == MD_SPAN_IMG) && !Targets.IsEmpty())
		{
			const FTarget Target = Targets.Pop();
			const FString Shown = Text.Slice(Target.FirstCell, Text.GetCells().Num()).ToPlainText();
			if (!Target.Address.IsEmpty() && !Target.Address.Equals(Shown))
			{
				Text.Add(TEXT(" (") + Target.Address + TEXT(")"), TextStyle::Faint);
			}
		}
	}

	void AddText(MD_TEXTTYPE Type, const char* Characters, size_t Size)
	{
		if (bInCode)
		{
			Code += FromUtf8(Characters, Size);
			return;
		}
		// The text of a tight list's item stands in no paragraph.
		switch (Type)
		{
			case MD_TEXT_NULLCHAR:
				Text.Add(FString::ChrN(1, TCHAR(0xFFFD)), GetStyle());
				break;
			case MD_TEXT_BR:
				if (!bInTable)
				{
					FlushText();
					break;
				}
				[[fallthrough]];
			case MD_TEXT_SOFTBR:
				Text.Add(TEXT(" "), GetStyle());
				break;
			case MD_TEXT_ENTITY:
				Text.Add(DecodeEntity(Characters, Size), GetStyle());
				break;
			default:
				Text.Add(FromUtf8(Characters, Size), GetStyle());
				break;
		}
	}

	FTextStyle GetStyle() const { return Styles.IsEmpty() ? BaseStyle : Styles.Last(); }

	void BeginText(const FTextStyle& Style)
	{
		AddGap(true);
		BaseStyle = Style;
	}

	void BeginItem(const MD_BLOCK_LI_DETAIL& Detail)
	{
		static constexpr const TCHAR* Bullets[] = {TEXT("• "), TEXT("◦ "), TEXT("▪ ")};
		FList& List = Lists.Last();
		AddGap(List.NumItems++ == 0 ? Lists.Num() == 1 : !List.bTight);
		FString Mark = List.bOrdered ? FString::Printf(TEXT("%u. "), List.NextNumber++) : FString(Bullets[(Lists.Num() - 1) % 3]);
		if (Detail.is_task)
		{
			Mark = Detail.task_mark == ' ' ? TEXT("☐ ") : TEXT("☑ ");
		}
		FContainer Item;
		Item.First.Add(Mark, TextStyle::Accent);
		Item.Rest.Add(FString::ChrN(Item.First.GetWidth(), TEXT(' ')));
		Containers.Add(MoveTemp(Item));
		BaseStyle = TextStyle::Plain;
		bGapWanted = false;
	}

	void BeginCell(bool bHead, MD_ALIGN Alignment)
	{
		BaseStyle = bHead ? TextStyle::Strong : TextStyle::Plain;
		if (bHead)
		{
			Table.Alignments.Add(Alignment == MD_ALIGN_RIGHT ? ETextAlignment::Right
					: Alignment == MD_ALIGN_CENTER           ? ETextAlignment::Center
															 : ETextAlignment::Left);
		}
	}

	FStyledLine MakePrefix(bool bFirst)
	{
		FStyledLine Prefix;
		for (FContainer& Container : Containers)
		{
			Prefix.Append(bFirst && !Container.bFirstUsed ? Container.First : Container.Rest);
			Container.bFirstUsed |= bFirst;
		}
		return Prefix;
	}

	int32 GetInnerWidth() const
	{
		int32 Used = 0;
		for (const FContainer& Container : Containers)
		{
			Used += Container.Rest.GetWidth();
		}
		return FMath::Max(Width - Used, MinTextWidth);
	}

	void AddLine(const FStyledLine& Line) { Lines.Add(MakePrefix(true).Append(Line)); }

	/** An empty line between two blocks, when the one above asked for it and the one below wants it. */
	void AddGap(bool bWanted)
	{
		FlushText();
		if (bWanted && bGapWanted && !Lines.IsEmpty())
		{
			Lines.Add(MakePrefix(false));
		}
		bGapWanted = false;
	}

	void FlushText()
	{
		if (Text.IsEmpty())
		{
			return;
		}
		const FStyledLine First = MakePrefix(true);
		// Containers may leave less than a word's room: the words then go beyond the width, but stay readable.
		const int32 TextWidth = FMath::Max(Width, First.GetWidth() + MinTextWidth);
		Lines.Append(WrapText(Text, TextWidth, First, MakePrefix(false)));
		Text = FStyledLine();
	}

	void AddCode()
	{
		TArray<FString> CodeLines;
		Code.ParseIntoArray(CodeLines, TEXT("\n"), false);
		if (!CodeLines.IsEmpty() && CodeLines.Last().IsEmpty())
		{
			CodeLines.Pop();
		}
		for (const FString& Line : CodeLines)
		{
			for (const FStyledLine& Part : RenderCodeLine(Line, GetInnerWidth()))
			{
				AddLine(Part);
			}
		}
		Code.Reset();
	}

	struct FTarget
	{
		FString Address;
		int32 FirstCell = 0;
	};

	int32 Width;
	TArray<FStyledLine> Lines;
	TArray<FContainer> Containers;
	TArray<FList> Lists;
	TArray<FTextStyle> Styles;
	TArray<FTarget> Targets;
	FTextStyle BaseStyle;
	FStyledLine Text;
	FString Code;
	FTextTable Table;
	bool bInCode = false;
	bool bInTable = false;
	bool bGapWanted = false;
};
}

TArray<FStyledLine> RenderMarkdown(FStringView Text, int32 Width)
{
	return FMarkdownRenderer(Width).Render(Text);
}

TArray<FStyledLine> RenderCodeLine(FStringView Code, int32 Width)
{
	const FStyledLine Indent(TEXT("    "));
	return WrapText(FStyledLine(Code, TextStyle::Code), FMath::Max(Width, Indent.GetWidth() + MinTextWidth), Indent, Indent);
}
