#include "Chat/ToolSummary.h"

#include "Chat/ChatDisplay.h"
#include "Misc/PackageName.h"
#include "VexelStringUtil.h"

namespace
{
constexpr int32 MaxProblems = 8;
constexpr int32 MaxProblemLength = 400;
constexpr int32 MaxTextLength = 60;

FString GetText(const FJsonObject& Object, const TCHAR* Key, int32 MaxLength = MaxTextLength)
{
	FString Text;
	Object.TryGetStringField(Key, Text);
	return FVexelStringUtil::ToPrintableLine(Text, MaxLength);
}

/** The objects of an array; anything else in it is passed over. */
TArray<TSharedPtr<FJsonObject>> GetObjects(const FJsonObject& Object, const TCHAR* Key)
{
	TArray<TSharedPtr<FJsonObject>> Objects;
	const TArray<TSharedPtr<FJsonValue>>* Values = nullptr;
	if (Object.TryGetArrayField(Key, Values))
	{
		for (const TSharedPtr<FJsonValue>& Value : *Values)
		{
			const TSharedPtr<FJsonObject>* Item = nullptr;
			if (Value && Value->TryGetObject(Item))
			{
				Objects.Add(*Item);
			}
		}
	}
	return Objects;
}

/** The texts of an array; anything else in it is passed over. */
void AddTexts(const FJsonObject& Answer, const TCHAR* Key, const TCHAR* Prefix, TArray<FString>& Problems)
{
	const TArray<TSharedPtr<FJsonValue>>* Texts = nullptr;
	if (Answer.TryGetArrayField(Key, Texts))
	{
		for (const TSharedPtr<FJsonValue>& Value : *Texts)
		{
			FString Text;
			if (Value && Value->TryGetString(Text))
			{
				Problems.Add(Prefix + FVexelStringUtil::ToPrintableLine(Text, MaxProblemLength));
			}
		}
	}
}

/** What a compiler says, where it is more than a note. */
void AddCompilerMessages(const FJsonObject& Answer, TArray<FString>& Problems)
{
	for (const TSharedPtr<FJsonObject>& Message : GetObjects(Answer, TEXT("compiler_messages")))
	{
		const FString Severity = GetText(*Message, TEXT("severity"));
		if (Severity == TEXT("error") || Severity == TEXT("warning"))
		{
			Problems.Add(Severity + TEXT(": ") + GetText(*Message, TEXT("message"), MaxProblemLength));
		}
	}
}

/** Keys of an input that say what it is about, the first that is there counts. */
constexpr const TCHAR* SubjectKeys[] = {TEXT("blueprint"), TEXT("asset"), TEXT("file"), TEXT("symbol"), TEXT("query"), TEXT("path")};
}

TArray<FString> FindProblems(const FJsonObject& Answer)
{
	TArray<FString> Problems;
	AddTexts(Answer, TEXT("errors"), TEXT(""), Problems);
	AddTexts(Answer, TEXT("warnings"), TEXT("warning: "), Problems);
	AddCompilerMessages(Answer, Problems);
	if (Problems.Num() > MaxProblems)
	{
		const int32 NumMore = Problems.Num() - MaxProblems + 1;
		Problems.SetNum(MaxProblems - 1);
		Problems.Add(FString::Printf(TEXT("… and %d more"), NumMore));
	}
	return Problems;
}

FString DescribeSubject(const FChatToolCall& Call)
{
	for (const TCHAR* const Key : SubjectKeys)
	{
		const FString Text = Call.Input ? GetText(*Call.Input, Key) : FString();
		if (!Text.IsEmpty())
		{
			return Text.StartsWith(TEXT("/")) ? FPackageName::GetShortName(FPackageName::ObjectPathToPackageName(Text)) : Text;
		}
	}
	return FString();
}
