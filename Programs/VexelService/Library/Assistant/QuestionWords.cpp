#include "QuestionWords.h"

#include "Assistant/Words.h"

#include <algorithm>
#include <utility>

namespace VexelService
{

namespace
{

constexpr std::size_t MaxWords = 48;
constexpr std::size_t MaxWordBytes = 512;

// Words that change nothing about what is asked.
constexpr std::string_view Fillers =
	"please|the|a|an|blueprint|asset|me|exactly|actually|can|could|would|you|tell|hi|hello|hey|so|to|all|just|really|currently";
constexpr std::string_view Greetings = "hi|hello|hey";
// At the beginning they only lead over.
constexpr std::string_view Connectives = "and|also|then|now|ok|okay|well|but|or";
// In front of "project" they say what is clear.
constexpr std::string_view Determiners = "this|our|my|current|whole|entire|open|opened";
constexpr std::string_view FileEndings = "ini|h|hpp|cpp|c|cs|uproject|uplugin|usf|ush|json";

std::string_view WithoutPunctuation(std::string_view Word)
{
	constexpr std::string_view Marks = "?!.,;:\"'`()[]{}<>*@#";
	const std::size_t Begin = Word.find_first_not_of(Marks);
	if (Begin == std::string_view::npos)
	{
		return {};
	}
	return Word.substr(Begin, Word.find_last_not_of(Marks) - Begin + 1);
}

bool LooksLikeAsset(std::string_view Word)
{
	return (StartsWith(Word, "/") && Word.find('/', 1) != std::string_view::npos) || IsPrefixedAssetName(Word);
}

// The path within "Blueprint'/Game/BP_Door.BP_Door'", as the editor copies references.
std::string_view WithoutReferenceClass(std::string_view Word)
{
	const std::size_t Quote = Word.find("'/");
	return Quote == std::string_view::npos ? Word : WithoutPunctuation(Word.substr(Quote + 1));
}

bool LooksLikeFile(std::string_view Word)
{
	const std::size_t Dot = Word.rfind('.');
	return Dot != std::string_view::npos && Dot > 0 && IsOneOf(Word.substr(Dot + 1), FileEndings);
}

FWord ReadWord(std::string_view Raw, const std::vector<std::string>& OpenNames)
{
	// "`BP_Door`'s" has its marks on both sides of the possessive.
	FWord Word{.Text = WithoutReferenceClass(WithoutPunctuation(Raw))};
	if (Word.Text.size() > 2 && EqualIgnoringCase(Word.Text.substr(Word.Text.size() - 2), "'s"))
	{
		Word.Text = WithoutPunctuation(Word.Text.substr(0, Word.Text.size() - 2));
		Word.bPossessive = true;
	}
	Word.bPossessive |= EqualIgnoringCase(Word.Text, "its");
	Word.bFile = LooksLikeFile(Word.Text);
	const bool bOpen = std::any_of(OpenNames.begin(), OpenNames.end(), [&Word](const std::string& Name)
		{ return EqualIgnoringCase(Name, Word.Text); });
	const bool bCertain = LooksLikeAsset(Word.Text) && !Word.bFile;
	Word.Asset = bCertain ? EAssetWord::Certain : bOpen ? EAssetWord::Open
														: EAssetWord::No;
	return Word;
}

// Whether a word only stands in front of the next one.
bool IsDeterminer(std::string_view Word, std::string_view Next)
{
	return IsOneOf(Word, Determiners) && IsOneOf(Next, "project|game|projects|games");
}

}

bool IsOneOf(std::string_view Word, std::string_view Alternatives)
{
	while (true)
	{
		const std::size_t Bar = Alternatives.find('|');
		if (EqualIgnoringCase(Word, Alternatives.substr(0, Bar)))
		{
			return true;
		}
		if (Bar == std::string_view::npos)
		{
			return false;
		}
		Alternatives.remove_prefix(Bar + 1);
	}
}

std::vector<std::string_view> SplitWords(std::string_view Text, std::size_t MaxCount)
{
	std::vector<std::string_view> Words;
	while (Words.size() <= MaxCount)
	{
		const std::size_t Begin = Text.find_first_not_of(" \t\r\n");
		if (Begin == std::string_view::npos)
		{
			break;
		}
		Text.remove_prefix(Begin);
		const std::size_t End = std::min(Text.find_first_of(" \t\r\n"), Text.size());
		Words.push_back(Text.substr(0, End));
		Text.remove_prefix(End);
	}
	return Words;
}

std::string WithPlainQuotes(std::string_view Message)
{
	static constexpr std::pair<std::string_view, char> Quotes[] = {
		{"\u2018", '\''},
		{"\u2019", '\''},
		{"\u201C", '"'},
		{"\u201D", '"'},
	};
	std::string Plain(Message);
	for (const auto& [Quote, Mark] : Quotes)
	{
		std::size_t Found = 0;
		while ((Found = Plain.find(Quote, Found)) != std::string::npos)
		{
			Plain.replace(Found, Quote.size(), 1, Mark);
		}
	}
	return Plain;
}

FMessageWords ReadMessageWords(std::string_view Message, const std::vector<std::string>& OpenNames)
{
	FMessageWords Result;
	const std::vector<std::string_view> Raw = SplitWords(Message, MaxWords);
	std::string_view Previous;
	for (std::size_t Index = 0; Index < Raw.size(); ++Index)
	{
		const FWord Word = ReadWord(Raw[Index], OpenNames);
		const std::string_view Next = Index + 1 < Raw.size() ? WithoutPunctuation(Raw[Index + 1]) : std::string_view();
		// "The function called Open", but not "where is Open called".
		const bool bIntroducesName = IsOneOf(Word.Text, "called|named") && IsOneOf(Previous, "blueprint|asset|variable|function|macro|event");
		const bool bLeadsOver = Result.Words.empty() && !Next.empty() && IsOneOf(Word.Text, Connectives);
		Previous = Word.Text;
		Result.bGreets |= IsOneOf(Word.Text, Greetings);
		Result.bFollowsOn |= bLeadsOver;
		if (Word.Text.empty() || IsOneOf(Word.Text, Fillers) || bIntroducesName || bLeadsOver || IsDeterminer(Word.Text, Next))
		{
			continue;
		}
		Result.bTooLong |= Word.Text.size() > MaxWordBytes;
		Result.Words.push_back(Word);
		if (Word.bPossessive && IsOneOf(Word.Text, "what|where|how|who"))
		{
			Result.Words.push_back({.Text = "is"});
		}
	}
	Result.bTooLong |= Result.Words.size() > MaxWords;
	return Result;
}

std::optional<std::size_t> FindAssetWord(const std::vector<FWord>& Words)
{
	std::optional<std::size_t> Found;
	for (std::size_t Index = 0; Index < Words.size(); ++Index)
	{
		if (Words[Index].Asset != EAssetWord::No && (!Found || Words[Index].Asset >= Words[*Found].Asset))
		{
			Found = Index;
		}
	}
	return Found;
}

}
