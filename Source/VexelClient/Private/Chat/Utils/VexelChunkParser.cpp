#include "Chat/Utils/VexelChunkParser.h"

#include "Dom/JsonObject.h"
#include "Dom/JsonValue.h"
#include "Serialization/JsonReader.h"
#include "Serialization/JsonSerializer.h"
#include "VexelLog.h"

#if defined(__SSE2__)
#include <emmintrin.h>
#endif

namespace
{
struct FTagOpening
{
	FStringView Text;
	EVexelChatMessageBlockType Type;
};

/** No opening begins another one, so the first whole match decides. */
constexpr FTagOpening TagOpenings[] = {
	{TEXTVIEW("<ToolCall"), EVexelChatMessageBlockType::ToolCall},
	{TEXTVIEW("<ToolResponse"), EVexelChatMessageBlockType::ToolResult},
	{TEXTVIEW("<SubChainStart"), EVexelChatMessageBlockType::SubChainStart},
	{TEXTVIEW("<SubChainEnd"), EVexelChatMessageBlockType::SubChainEnd},
	{TEXTVIEW("<Checkpoint"), EVexelChatMessageBlockType::Checkpoint},
	{TEXTVIEW("<Image"), EVexelChatMessageBlockType::Image},
	{TEXTVIEW("<Error"), EVexelChatMessageBlockType::Error},
};

const FString InfoKey = TEXT("info");

/** Keys whose values become string fields of the information object. */
const FString StringKeys[] = {TEXT("asset_id"), TEXT("url")};

bool IsBlank(TCHAR Character)
{
	return Character == TEXT(' ') || Character == TEXT('\t') || Character == TEXT('\n') || Character == TEXT('\r');
}

bool IsKeyStart(TCHAR Character)
{
	return (Character >= TEXT('a') && Character <= TEXT('z')) || (Character >= TEXT('A') && Character <= TEXT('Z')) || Character == TEXT('_');
}

bool IsDigit(TCHAR Character)
{
	return Character >= TEXT('0') && Character <= TEXT('9');
}

/** Index of the first "<", or the length. Nearly all of an answer passes through here. */
int32 FindTagStart(FStringView Text)
{
	const TCHAR* const Data = Text.GetData();
	const int32 Length = Text.Len();
	int32 Index = 0;
#if defined(__SSE2__)
	const __m128i Wanted = _mm_set1_epi16(TEXT('<'));
	for (; Index + 8 <= Length; Index += 8)
	{
		const __m128i Characters = _mm_loadu_si128(reinterpret_cast<const __m128i*>(Data + Index));
		if (_mm_movemask_epi8(_mm_cmpeq_epi16(Characters, Wanted)) != 0)
		{
			break;
		}
	}
#endif
	while (Index < Length && Data[Index] != TEXT('<'))
	{
		++Index;
	}
	return Index;
}

/** As much of the service's own text as a line of the log has room for. */
FString ToExcerpt(FStringView Text)
{
	constexpr int32 MaxLength = 500;
	return Text.Len() <= MaxLength ? FString(Text) : FString(Text.Left(MaxLength)) + TEXT("...");
}

/** Reads any JSON value. The reader takes only an object or an array as a document, so the value is made an array's element. */
TSharedPtr<FJsonValue> ParseJsonValue(FStringView Text, FString& OutError)
{
	TArray<TSharedPtr<FJsonValue>> Elements;
	const TSharedRef<TJsonReader<>> Reader = TJsonReaderFactory<>::Create(FString(TEXT("[")) + Text + TEXT("]"));
	if (FJsonSerializer::Deserialize(Reader, Elements) && Elements.Num() == 1)
	{
		return Elements[0];
	}
	OutError = Reader->GetErrorMessage();
	return nullptr;
}
}

FVexelChunkParser::FVexelChunkParser(IVexelChunkSink& InSink)
	: Sink(InSink)
{
}

void FVexelChunkParser::Parse(FStringView Chunk)
{
	int32 Index = 0;
	while (Index < Chunk.Len())
	{
		if (State == EState::Text)
		{
			const FStringView Rest = Chunk.RightChop(Index);
			const int32 TextLength = FindTagStart(Rest);
			if (TextLength > 0)
			{
				Sink.OnText(Rest.Left(TextLength));
			}
			Index += TextLength;
			if (Index == Chunk.Len())
			{
				return;
			}
			State = EState::Opening;
			Held.Reset();
		}

		const TCHAR Character = Chunk[Index];
		bReadAgain = false;
		switch (State)
		{
			case EState::Text:
				break;
			case EState::Opening:
				ReadOpening(Character);
				break;
			case EState::BeforeKey:
				ReadBeforeKey(Character);
				break;
			case EState::Key:
				ReadKey(Character);
				break;
			case EState::BeforeEquals:
				ReadBeforeEquals(Character);
				break;
			case EState::BeforeValue:
				ReadBeforeValue(Character);
				break;
			case EState::Value:
				ReadValue(Character);
				break;
			case EState::Closing:
				ReadClosing(Character);
				break;
		}
		if (bReadAgain)
		{
			continue;
		}
		++Index;
		if (State != EState::Text)
		{
			Held.AppendChar(Character);
			if (Held.Len() > MaxTagLength)
			{
				RevertToText();
			}
		}
	}
}

void FVexelChunkParser::Finish()
{
	if (State != EState::Text)
	{
		RevertToText();
	}
}

void FVexelChunkParser::ReadOpening(TCHAR Character)
{
	const int32 Length = Held.Len();
	bool bPossible = false;
	for (const FTagOpening& Opening : TagOpenings)
	{
		if (Opening.Text.Len() <= Length || Opening.Text[Length] != Character || !Opening.Text.StartsWith(Held, ESearchCase::CaseSensitive))
		{
			continue;
		}
		bPossible = true;
		if (Opening.Text.Len() == Length + 1)
		{
			BeginTag(Opening.Type);
		}
	}
	if (!bPossible)
	{
		RevertToText();
	}
}

void FVexelChunkParser::ReadBeforeKey(TCHAR Character)
{
	if (IsBlank(Character))
	{
		return;
	}
	if (IsKeyStart(Character))
	{
		KeyStart = Held.Len();
		State = EState::Key;
	}
	else if (Character == TEXT('/'))
	{
		State = EState::Closing;
	}
	else if (Character == TEXT('{') || Character == TEXT('[') || Character == TEXT('"') || Character == TEXT('-') || IsDigit(Character))
	{
		VEXEL_LOG(Warning, "Tool call value started without a key, defaulting to `info`");
		Key = InfoKey;
		BeginValue(Character);
	}
	else
	{
		RevertToText();
	}
}

void FVexelChunkParser::ReadKey(TCHAR Character)
{
	if (IsKeyStart(Character) || IsDigit(Character))
	{
		return;
	}
	Key = Held.Mid(KeyStart);
	State = EState::BeforeEquals;
	bReadAgain = true;
}

void FVexelChunkParser::ReadBeforeEquals(TCHAR Character)
{
	if (Character == TEXT('='))
	{
		State = EState::BeforeValue;
	}
	else if (!IsBlank(Character))
	{
		RevertToText();
	}
}

void FVexelChunkParser::ReadBeforeValue(TCHAR Character)
{
	if (IsBlank(Character))
	{
		return;
	}
	if (Character == TEXT('/') || Character == TEXT('>') || Character == TEXT('<'))
	{
		RevertToText();
		return;
	}
	BeginValue(Character);
}

void FVexelChunkParser::ReadValue(TCHAR Character)
{
	if (bInString)
	{
		if (bEscaped)
		{
			bEscaped = false;
		}
		else if (Character == TEXT('\\'))
		{
			bEscaped = true;
		}
		else if (Character == TEXT('"'))
		{
			bInString = false;
			if (ValueForm == EValueForm::String)
			{
				EndValueWith(Character);
			}
		}
		return;
	}
	if (ValueForm == EValueForm::Bare)
	{
		if (IsBlank(Character) || Character == TEXT('/') || Character == TEXT('>') || Character == TEXT('<'))
		{
			EndValue();
			bReadAgain = true;
		}
		return;
	}
	if (Character == TEXT('"'))
	{
		bInString = true;
	}
	else if (Character == TEXT('{') || Character == TEXT('['))
	{
		if (++Depth > MaxValueDepth)
		{
			RevertToText();
		}
	}
	else if ((Character == TEXT('}') || Character == TEXT(']')) && --Depth == 0)
	{
		EndValueWith(Character);
	}
}

void FVexelChunkParser::ReadClosing(TCHAR Character)
{
	if (Character == TEXT('>'))
	{
		EndTag();
	}
	else
	{
		RevertToText();
	}
}

void FVexelChunkParser::BeginTag(EVexelChatMessageBlockType Type)
{
	TagType = Type;
	Info = MakeShared<FJsonObject>();
	State = EState::BeforeKey;
}

void FVexelChunkParser::BeginValue(TCHAR Character)
{
	ValueStart = Held.Len();
	bEscaped = false;
	bInString = Character == TEXT('"');
	const bool bNested = Character == TEXT('{') || Character == TEXT('[');
	Depth = bNested ? 1 : 0;
	ValueForm = bNested ? EValueForm::Nested : bInString ? EValueForm::String
														 : EValueForm::Bare;
	State = EState::Value;
}

void FVexelChunkParser::EndValueWith(TCHAR Character)
{
	Held.AppendChar(Character);
	EndValue();
	Held.LeftChopInline(1);
}

void FVexelChunkParser::EndValue()
{
	State = EState::BeforeKey;
	const FStringView Text = FStringView(Held).RightChop(ValueStart);
	FString Error;
	const TSharedPtr<FJsonValue> Value = ParseJsonValue(Text, Error);
	if (!Value)
	{
		VEXEL_LOG(Warning, "Failed to parse tool call value as JSON: %s: `%s`", *Error, *ToExcerpt(Text));
		return;
	}

	if (Key.Equals(InfoKey, ESearchCase::IgnoreCase))
	{
		const TSharedPtr<FJsonObject>* Object = nullptr;
		if (!Value->TryGetObject(Object))
		{
			VEXEL_LOG(Warning, "Failed to parse tool call value as JSON: %s: `%s`", TEXT("an object is expected"), *ToExcerpt(Text));
			return;
		}
		for (const auto& Field : (*Object)->Values)
		{
			Info->SetField(FString(Field.Key), Field.Value);
		}
		return;
	}
	for (const FString& StringKey : StringKeys)
	{
		FString String;
		if (Key.Equals(StringKey, ESearchCase::IgnoreCase) && Value->TryGetString(String))
		{
			Info->SetStringField(StringKey, String.TrimStartAndEnd());
			return;
		}
	}
	VEXEL_LOG(Warning, "Tool call value with key `%s` is not supported, ignoring", *ToExcerpt(Key));
}

void FVexelChunkParser::EndTag()
{
	State = EState::Text;
	Sink.OnTag(TagType, Info.ToSharedRef());
	Info.Reset();
}

void FVexelChunkParser::RevertToText()
{
	State = EState::Text;
	bReadAgain = true;
	Info.Reset();
	if (!Held.IsEmpty())
	{
		Sink.OnText(Held);
		Held.Reset();
	}
}
