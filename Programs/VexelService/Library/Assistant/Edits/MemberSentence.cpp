#include "MemberSentence.h"

#include "Assistant/Edits/ValueWords.h"
#include "Assistant/QuestionWords.h"
#include "Assistant/Words.h"

#include <algorithm>
#include <iterator>

namespace VexelService
{

namespace
{

constexpr std::size_t MaxNames = 6;
/** Nobody says more in one sentence; reading lists takes time that grows with the square of their length. */
constexpr std::size_t MaxRequestWords = 100;

constexpr std::string_view Moments = "when|whenever|if|once|every|each|while|until|upon|unless|after|before|soon";
constexpr std::string_view Places = "to|in|on|of|from|for|inside|within|into";
// Behind these a name is a type and not the Blueprint to edit.
constexpr std::string_view TypeLeads =
	"class|type|reference|references|ref|refs|pointer|pointers|array|list|set|map|object|objects|instance|subclass|interface";
constexpr std::string_view Having = "needs|has|gets|wants|have|get|gains";
constexpr std::string_view Ordinals[] = {"first", "second", "third", "fourth", "fifth", "sixth", "seventh", "eighth", "ninth", "tenth"};
constexpr std::string_view ElementNouns = "element|elements|item|entry|value|point|slot";

struct FNounWords
{
	std::string_view Words;
	EMemberNoun Noun;
};

constexpr FNounWords NounWords[] = {
	{"variable|variables|var|property|field|attribute|member|component|array|list|map|set", EMemberNoun::Variable},
	{"function|method", EMemberNoun::Function},
	{"event", EMemberNoun::Event},
	{"input|parameter|argument|pin", EMemberNoun::Input},
	{"output|result", EMemberNoun::Output},
};

EMemberNoun FindNoun(const FEditWord& Word)
{
	const auto Found = std::find_if(std::begin(NounWords), std::end(NounWords), [&Word](const FNounWords& Row)
		{ return IsWord(Word, Row.Words); });
	return Found == std::end(NounWords) ? EMemberNoun::Any : Found->Noun;
}

bool IsAssetWord(const FEditWord& Word)
{
	return !Word.bMark && (IsPrefixedAssetName(Word.Text) || (StartsWith(Word.Text, "/") && Word.Text.find('/', 1) != std::string::npos));
}

bool IsBackReferenceAt(const FEditWords& Words, std::size_t At)
{
	const bool bThis = At < Words.size() && IsWord(Words[At], "this|that|the|my|same");
	const bool bBlueprint = bThis && At + 1 < Words.size() && IsWord(Words[At + 1], "blueprint|bp|asset");
	return bBlueprint || (At + 1 == Words.size() && IsWord(Words[At], "it|this|that|here|there"));
}

void Erase(FEditWords& Words, std::size_t Begin, std::size_t End)
{
	const auto First = Words.begin();
	Words.erase(First + static_cast<std::ptrdiff_t>(Begin), First + static_cast<std::ptrdiff_t>(std::min(End, Words.size())));
}

// "To BP_Door" within a message, and "to it" at its end.
void TakePlace(FEditMessage& Message)
{
	FEditWords& Words = Message.Words;
	for (std::size_t At = 1; At < Words.size(); ++At)
	{
		std::size_t Name = At + 1;
		while (Name < Words.size() && IsWord(Words[Name], "the|blueprint|my"))
		{
			++Name;
		}
		const bool bMapValue = At > 2 && IsWord(Words[At - 2], "from|of") && IsWord(Words[At - 3], "map|dictionary");
		if (!IsWord(Words[At], Places) || IsWord(Words[At - 1], TypeLeads) || bMapValue)
		{
			continue;
		}
		if (Name < Words.size() && IsAssetWord(Words[Name]) && Message.Blueprint.empty())
		{
			Message.Blueprint = Words[Name].Text;
			Erase(Words, At, Name + 1);
			return;
		}
		if (IsBackReferenceAt(Words, At + 1))
		{
			Erase(Words, At, IsWord(Words[At + 1], "it|here|there") || At + 2 == Words.size() ? At + 2 : At + 3);
			return;
		}
	}
}

// "Give BP_Door a ..." and "BP_Door needs a ...", with a verb in their place.
void TakeSubject(FEditMessage& Message)
{
	FEditWords& Words = Message.Words;
	const bool bMake = Words.size() > 2 && IsWord(Words[0], "make|let") && IsAssetWord(Words[1]);
	if (bMake)
	{
		Message.Blueprint = std::exchange(Words[1].Text, "it");
		return;
	}
	const bool bGive = Words.size() > 2 && IsWord(Words[0], "give") && (IsAssetWord(Words[1]) || IsWord(Words[1], "it|this"));
	if (bGive)
	{
		Message.Blueprint = IsAssetWord(Words[1]) ? Words[1].Text : Message.Blueprint;
		Words[0].Text = "add";
		Erase(Words, 1, 2);
		return;
	}
	std::size_t Verb = 1;
	while (Verb < Words.size() && IsWord(Words[Verb], "should|must|also|now|to"))
	{
		++Verb;
	}
	const bool bNeeds = Words.size() > Verb + 1 && IsWord(Words[Verb], Having) && (IsAssetWord(Words[0]) || IsWord(Words[0], "it"));
	if (bNeeds)
	{
		Message.Blueprint = IsAssetWord(Words[0]) ? Words[0].Text : Message.Blueprint;
		Words[Verb].Text = "add";
		Erase(Words, 0, Verb);
	}
}

// Whether something is to happen at a time: "when play begins", "on overlap". Where a list's end is, is none.
bool TellsMoment(const FEditWords& Words)
{
	for (std::size_t At = 0; At < Words.size(); ++At)
	{
		const bool bOn = IsWord(Words[At], "on") && !(At + 1 < Words.size() && IsWord(Words[At + 1], "spawn|the|instance|instances"));
		if (bOn || IsWord(Words[At], Moments))
		{
			return true;
		}
	}
	return false;
}

/** Reads the names of a member from the words for it. */
class FMemberReader
{
public:
	std::optional<FSaidMember> Read(FEditWordSpan Words)
	{
		FEditWords Part;
		std::vector<FEditWords> Owned;
		for (const FEditWord& Word : Words)
		{
			if (Word.bMark)
			{
				return std::nullopt;
			}
			if (IsWord(Word, "of|in|on|from|inside|for"))
			{
				if (!ReadParts(Owned, std::exchange(Part, FEditWords())))
				{
					return std::nullopt;
				}
				continue;
			}
			const bool bPossessive =
				!Word.bQuoted && Word.Text.size() > 2 && EqualIgnoringCase(std::string_view(Word.Text).substr(Word.Text.size() - 2), "'s");
			Part.push_back(bPossessive ? FEditWord{.Text = Word.Text.substr(0, Word.Text.size() - 2)} : Word);
			if (bPossessive)
			{
				Owned.push_back(std::exchange(Part, FEditWords()));
			}
		}
		const bool bRead = ReadParts(Owned, Part) && !Member.Names.empty() && Member.Names.size() <= MaxNames;
		return bRead ? std::optional<FSaidMember>(Member) : std::nullopt;
	}

private:
	/** "PointLight's intensity" and "intensity of PointLight" are the same; of the former the owners stand before it. */
	bool ReadParts(std::vector<FEditWords>& Owners, const FEditWords& Innermost)
	{
		// "Health's" alone is Health.
		const bool bInnermost = (Innermost.empty() && !Owners.empty()) || ReadPart(Innermost);
		const bool bRead = bInnermost && std::all_of(Owners.rbegin(), Owners.rend(), [this](const FEditWords& Owner)
											 { return ReadPart(Owner); });
		Owners.clear();
		return bRead;
	}

	bool ReadPart(FEditWordSpan Words)
	{
		while (!Words.empty() && IsWord(Words.front(), "the|a|an|its|my|this|that|current"))
		{
			Words = Words.subspan(1);
		}
		const bool bDefault = !Words.empty() && IsWord(Words.front(), "default|initial|starting");
		Words = bDefault ? Words.subspan(1) : Words;
		const bool bOnlyValue = bDefault && Words.empty();
		if (bOnlyValue || (Words.size() == 1 && IsWord(Words[0], "value")))
		{
			// "The default value of Health" is Health's.
			return true;
		}
		if (ReadElement(Words))
		{
			return true;
		}
		return !Words.empty() && ReadName(Words);
	}

	/** "Second element", "element 2", "last item", "the default element". */
	bool ReadElement(FEditWordSpan& Words)
	{
		if (Words.size() == 2 && IsWord(Words[0], ElementNouns) && ReadCount(Words[1].Text))
		{
			Member.Element.Index = *ReadCount(Words[1].Text);
			return true;
		}
		if (Words.size() == 2 && IsWord(Words[0], "index|number"))
		{
			Member.Element.Index = ReadCount(Words[1].Text);
			return Member.Element.Index.has_value();
		}
		const bool bNoun = Words.size() == 2 && IsWord(Words[1], ElementNouns);
		if (!bNoun && Words.size() != 1)
		{
			return false;
		}
		const auto Ordinal = std::find_if(std::begin(Ordinals), std::end(Ordinals), [&Words](std::string_view Candidate)
			{ return IsWord(Words[0], Candidate); });
		if (Ordinal != std::end(Ordinals))
		{
			Member.Element.Index = static_cast<int>(Ordinal - std::begin(Ordinals));
			return true;
		}
		const std::string_view Text = Words[0].Text;
		const bool bCounted = Text.size() > 2 && IsOneOf(Text.substr(Text.size() - 2), "st|nd|rd|th");
		const std::optional<int> Place = bCounted ? ReadCount(Text.substr(0, Text.size() - 2)) : std::nullopt;
		if (Place && *Place > 0)
		{
			Member.Element.Index = *Place - 1;
			return true;
		}
		const bool bLast = IsWord(Words[0], "last");
		Member.Element.bLast |= bLast;
		return bLast;
	}

	bool ReadName(FEditWordSpan Words)
	{
		EMemberNoun Noun = EMemberNoun::Any;
		bool bLocal = false;
		while (Words.size() > 1 && (IsWord(Words.front(), "local|custom|class|return") || FindNoun(Words.front()) != EMemberNoun::Any))
		{
			bLocal |= IsWord(Words.front(), "local");
			const EMemberNoun Said = FindNoun(Words.front());
			Noun = Noun == EMemberNoun::Any || Said == EMemberNoun::Output ? Said : Noun;
			Words = Words.subspan(1);
		}
		if (Words.size() > 1 && IsWord(Words.front(), "called|named"))
		{
			Words = Words.subspan(1);
		}
		while (Words.size() > 1 && FindNoun(Words.back()) != EMemberNoun::Any)
		{
			Noun = Noun == EMemberNoun::Any ? FindNoun(Words.back()) : Noun;
			Words = Words.first(Words.size() - 1);
		}
		std::string Name = JoinWords(FEditWords(Words.begin(), Words.end()));
		const std::size_t Bracket = Name.find('[');
		const std::optional<int> Index = Bracket == std::string::npos ? std::nullopt : ReadCount(std::string_view(Name).substr(Bracket + 1));
		if (Index)
		{
			Member.Element.Index = Index;
			Name.resize(Bracket);
		}
		const bool bOwner = !Member.Names.empty() && (Noun == EMemberNoun::Function || Noun == EMemberNoun::Event);
		if (bOwner)
		{
			Member.Owner = Name;
			return true;
		}
		if (Member.Names.empty())
		{
			Member.Noun = bLocal ? EMemberNoun::LocalVariable : Noun;
		}
		Member.Names.push_back(Name);
		return Name.size() <= 100 && Words.size() <= 5;
	}

	FSaidMember Member;
};

}

std::optional<FEditMessage> ReadMemberMessage(const FEditMessage& Message)
{
	FEditMessage Read{.Words = WithoutPoliteness(Message.Words), .Blueprint = Message.Blueprint, .Subject = Message.Subject};
	if (Read.Words.size() > MaxRequestWords)
	{
		return std::nullopt;
	}
	TakeSubject(Read);
	TakePlace(Read);
	return Read.Words.empty() || TellsMoment(Read.Words) ? std::nullopt : std::optional<FEditMessage>(Read);
}

std::optional<FSaidMember> ReadSaidMember(FEditWordSpan Words)
{
	return FMemberReader().Read(Words);
}

bool IsReferenceBack(const FSaidMember& Member)
{
	return Member.Names.size() == 1 && Member.Owner.empty() && IsOneOf(Member.Names.front(), "it|this|that|variable|one|function|event");
}

std::optional<FSplitRequest> SplitRequest(std::string_view Pattern, const FEditWords& Words)
{
	const std::optional<FCaptures> Captures = MatchWords(Pattern, Words);
	if (!Captures)
	{
		return std::nullopt;
	}
	const std::optional<FSaidMember> Member = ReadSaidMember(Captures->find("member")->second);
	const auto Rest = Captures->find("rest");
	return Member ? std::optional<FSplitRequest>({*Member, Rest == Captures->end() ? FEditWords() : Rest->second}) : std::nullopt;
}

bool ResolveSubject(FSaidMember& Member, const FEditMessage& Message)
{
	const bool bRefers = IsReferenceBack(Member);
	if (bRefers && !Message.Subject.empty())
	{
		Member.Names.front() = Message.Subject;
	}
	return !bRefers || !Message.Subject.empty();
}

std::string SubjectOf(const FSaidMember& Member)
{
	return Member.Names.size() == 1 && Member.Owner.empty() ? Member.Names.front() : std::string();
}

}
