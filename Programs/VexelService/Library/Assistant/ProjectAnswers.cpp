#include "Assistant/ProjectAnswers.h"

#include "Assistant/Markdown.h"
#include "Assistant/Words.h"

#include <algorithm>
#include <cstdio>
#include <vector>

namespace VexelService
{

namespace
{

constexpr std::size_t MaxListed = 40;
constexpr std::size_t MaxNamed = 12;
constexpr std::size_t MaxShownLines = 80;
constexpr std::size_t MaxShownBytes = 8000;
constexpr std::size_t MaxDeclarations = 5;

std::size_t CountMember(const FJson& Object, const char* Key)
{
	const FJson* const Member = FindMember(Object, Key);
	return Member && Member->is_number_unsigned() ? Member->get<std::size_t>() : 0;
}

// The strings of an array, or the member Key of the objects in it.
std::vector<std::string> Texts(const FJson& Array, const char* Key = "name")
{
	std::vector<std::string> Found;
	for (const FJson& Item : Array)
	{
		std::string Text = Item.is_string() ? Item.get<std::string>() : TextMember(Item, Key);
		if (!Text.empty())
		{
			Found.push_back(std::move(Text));
		}
	}
	return Found;
}

// "a, b and c", or as many as can be read with the others counted.
std::string NameSome(std::vector<std::string> Names, bool bCode)
{
	const std::size_t Rest = Names.size() > MaxNamed ? Names.size() - MaxNamed : 0;
	Names.resize(std::min(Names.size(), MaxNamed));
	for (std::string& Name : Names)
	{
		Name = bCode ? Code(Name) : Bold(Name);
	}
	if (Rest > 0)
	{
		Names.push_back(CountOf(Rest, "other"));
	}
	return JoinWithAnd(Names);
}

std::string Line(const std::string& Label, const std::string& Text)
{
	return Text.empty() ? std::string() : "- " + Label + ": " + Text + "\n";
}

std::string SizeInWords(std::size_t Bytes)
{
	char Text[32];
	if (Bytes < 10'000)
	{
		return CountOf(Bytes, "byte");
	}
	const bool bMega = Bytes >= 1'000'000;
	std::snprintf(Text, sizeof(Text), "%.1f %s", static_cast<double>(Bytes) / (bMega ? 1e6 : 1e3), bMega ? "MB" : "kB");
	return Text;
}

std::vector<std::string> ShortNames(std::vector<std::string> Paths)
{
	for (std::string& Path : Paths)
	{
		Path = ShortName(Path);
	}
	return Paths;
}

// Packages of a "dependencies" or "referencers" member, those of the engine's modules left out or alone.
std::vector<std::string> Packages(const FJson& Info, const char* Key, const char* Strength, bool bScripts)
{
	const FJson* const Member = FindMember(Info, Key);
	std::vector<std::string> Found;
	for (std::string& Path : Texts(Member ? ArrayMember(*Member, Strength) : FJson::array()))
	{
		if (StartsWith(Path, "/Script/") == bScripts)
		{
			Found.push_back(std::move(Path));
		}
	}
	return Found;
}

std::string ClassCounts(const FJson& Content)
{
	const FJson* const ByClass = FindMember(Content, "by_class");
	std::vector<std::string> Parts;
	if (ByClass && ByClass->is_object())
	{
		for (const auto& [Class, Count] : ByClass->items())
		{
			if (Count.is_number_unsigned())
			{
				Parts.push_back(std::to_string(Count.get<std::size_t>()) + " of class " + Class);
			}
		}
	}
	return JoinWithAnd(Parts);
}

// The head of a text, and how many lines are left out.
std::string Head(std::string_view Text, std::size_t& OutRest)
{
	std::size_t End = 0;
	std::size_t Lines = 0;
	while (End < Text.size() && Lines < MaxShownLines && End < MaxShownBytes)
	{
		End = std::min(Text.find('\n', End), Text.size() - 1) + 1;
		++Lines;
	}
	const std::string_view Rest = Text.substr(End);
	OutRest = static_cast<std::size_t>(std::count(Rest.begin(), Rest.end(), '\n')) + (!Rest.empty() && Rest.back() != '\n' ? 1 : 0);
	return Shortened(std::string(Text.substr(0, End)), MaxShownBytes);
}

std::string LanguageOf(std::string_view File)
{
	const std::string Ending = LowerCase(LastSegment(File, '.'));
	const bool bCpp = Ending == "h" || Ending == "cpp" || Ending == "hpp";
	return bCpp ? "cpp" : Ending == "uproject" || Ending == "uplugin" ? "json"
																	  : Ending;
}

std::string LinesInWords(const FJson& Object)
{
	const std::size_t First = CountMember(Object, "first_line");
	const std::size_t Last = CountMember(Object, "last_line");
	return First == Last ? "line " + std::to_string(First) : "lines " + std::to_string(First) + " to " + std::to_string(Last);
}

}

std::string DescribeProject(const FJson& Project)
{
	const FJson* const Content = FindMember(Project, "content");
	const std::size_t Total = Content ? CountMember(*Content, "total") : 0;
	const std::string Engine = TextMember(Project, "engine_version");
	const std::string Description = TextMember(Project, "description");
	std::string Text = Bold(TextMember(Project, "name")) + " is a project" + (Engine.empty() ? "" : " open in engine " + Engine) + ".";
	Text += Description.empty() ? "\n\n" : " " + Description + "\n\n";
	Text += "- It has " + CountOf(Total, "asset") + (Total > 0 ? ": " + ClassCounts(*Content) : "") + "\n";
	const std::string DefaultMap = TextMember(Project, "game_default_map");
	Text += Line("Levels", NameSome(ShortNames(Texts(ArrayMember(Project, "maps"))), false));
	Text += Line("The game begins in", DefaultMap.empty() ? "" : Bold(ShortName(DefaultMap)));
	Text += Line("C++ modules", NameSome(Texts(ArrayMember(Project, "modules")), false));
	Text += Line("Plug-ins", NameSome(Texts(ArrayMember(Project, "plugins")), false));
	Text += Line("Source files", NameSome(Texts(ArrayMember(Project, "source_files")), true));
	Text += Line("Configuration", NameSome(Texts(ArrayMember(Project, "config_files")), true));
	return Text;
}

std::string DescribeAssets(const FAssetList& Assets, std::string_view Kind)
{
	const std::string Plural(Kind);
	if (Assets.Rows.empty())
	{
		return "The project has no " + LowerCase(Plural) + " that the editor finds.\n";
	}
	const bool bOne = Assets.Total == 1;
	std::string Text = bOne ? "The project has one of them:\n\n" : "The project has " + std::to_string(Assets.Total) + " " + Plural + ":\n\n";
	for (std::size_t Index = 0; Index < std::min(Assets.Rows.size(), MaxListed); ++Index)
	{
		const FAssetRow& Row = Assets.Rows[Index];
		const std::string Class = Row.ParentClass.empty() ? Row.Class : Row.Class + ", " + WithArticle(Row.ParentClass);
		Text += "- " + Bold(Row.Name) + " (" + Class + "): " + Code(Row.Path.substr(0, Row.Path.rfind('.'))) + "\n";
	}
	const std::size_t Shown = std::min(Assets.Rows.size(), MaxListed);
	return Assets.Total > Shown ? Text + "- and " + CountOf(Assets.Total - Shown, "other") + "\n" : Text;
}

std::string DescribeAsset(const FJson& Info)
{
	const std::string Class = TextMember(Info, "class");
	const std::string Parent = TextMember(Info, "parent_class");
	std::string Text = Bold(TextMember(Info, "name")) + " is " + WithArticle(Class.empty() ? "asset" : Class);
	Text += (Parent.empty() ? std::string() : " with the parent class " + Parent) + ".\n\n";
	const std::string File = TextMember(Info, "file");
	const std::size_t Size = CountMember(Info, "size");
	Text += Line("Path", Code(TextMember(Info, "package")));
	Text += Line("File", File.empty() ? "none: it was never saved, or lies outside the project" : Code(File));
	Text += Line("Size", Size == 0 ? "" : SizeInWords(Size));
	Text += Line("Written", TextMember(Info, "modified"));
	const FJson* const Unsaved = FindMember(Info, "unsaved");
	Text += Unsaved && Unsaved->is_boolean() && Unsaved->get<bool>() ? "- It has changes that are not saved yet\n" : "";
	Text += Line("It refers to", NameSome(ShortNames(Packages(Info, "dependencies", "hard", false)), false));
	Text += Line("It is referred to by", NameSome(ShortNames(Packages(Info, "referencers", "hard", false)), false));
	Text += Line("It is named, and loaded when needed, by", NameSome(ShortNames(Packages(Info, "referencers", "soft", false)), false));
	return Text;
}

std::string DescribeDependencies(const FJson& Info)
{
	const std::string Name = Bold(TextMember(Info, "name"));
	std::string List = Line("Assets that it cannot be loaded without", NameSome(Packages(Info, "dependencies", "hard", false), true));
	List += Line("Assets that it only names", NameSome(Packages(Info, "dependencies", "soft", false), true));
	List += Line("Modules of the engine and of the project", NameSome(ShortNames(Packages(Info, "dependencies", "hard", true)), false));
	return List.empty() ? Name + " depends on nothing.\n" : Name + " depends on this:\n\n" + List;
}

std::string DescribeFile(const FJson& Source)
{
	const std::string File = TextMember(Source, "file");
	std::size_t Rest = 0;
	const std::string Text = Head(TextMember(Source, "text"), Rest);
	const std::size_t Total = CountMember(Source, "total_lines");
	std::string Answer = Code(File) + " has " + CountOf(Total, "line") + (Text.empty() ? ".\n" : ":\n\n");
	Answer += Text.empty() ? "" : CodeBlock(Text, LanguageOf(File));
	const std::size_t LastLine = CountMember(Source, "last_line");
	const std::size_t Unread = Total > LastLine ? Total - LastLine : 0;
	return Rest + Unread > 0 ? Answer + "\nI leave out the " + CountOf(Rest + Unread, "line") + " behind that.\n" : Answer;
}

std::string DescribeDeclarations(const FJson& Source)
{
	const FJson& Declarations = ArrayMember(Source, "declarations");
	const std::string Symbol = TextMember(Source, "symbol");
	if (Declarations.empty())
	{
		return "The project's sources declare no " + Code(Symbol) + ".\n";
	}
	std::string Text;
	for (std::size_t Index = 0; Index < std::min<std::size_t>(Declarations.size(), MaxDeclarations); ++Index)
	{
		const FJson& Declaration = Declarations[Index];
		const std::string File = TextMember(Declaration, "file");
		std::size_t Rest = 0;
		const std::string Body = Head(TextMember(Declaration, "text"), Rest);
		Text += (Text.empty() ? "" : "\n") + std::string("The ") + TextMember(Declaration, "kind") + " " + Code(TextMember(Declaration, "name"));
		Text += ", " + Code(File) + ", " + LinesInWords(Declaration) + ":\n\n" + CodeBlock(Body, LanguageOf(File));
		Text += Rest > 0 ? "\nI leave out the " + CountOf(Rest, "line") + " behind that.\n" : "";
	}
	const std::size_t More = Declarations.size() - std::min<std::size_t>(Declarations.size(), MaxDeclarations);
	return More > 0 ? Text + "\nThere are " + CountOf(More, "further declaration") + ".\n" : Text;
}

}
