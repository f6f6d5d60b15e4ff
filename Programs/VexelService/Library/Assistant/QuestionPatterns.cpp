#include "QuestionPatterns.h"

#include "QuestionWords.h"
#include "Assistant/Words.h"

#include <algorithm>

namespace VexelService
{

namespace
{

struct FPatternRow
{
	EQuestionKind Kind;
	std::string_view Text;
};

constexpr FPatternRow PatternRows[] = {
	{EQuestionKind::Help, "help"},
	{EQuestionKind::Help, "what do"},
	{EQuestionKind::Help, "what do understand|know|answer"},
	{EQuestionKind::Help, "how do help"},
	{EQuestionKind::Help, "who|what are"},
	{EQuestionKind::Help, "what|which questions do i ask|understand|answer"},
	{EQuestionKind::Help, "what do i ask"},
	{EQuestionKind::Thanks, "thanks|thank|thx|great|cool|nice|perfect"},
	{EQuestionKind::Thanks, "thanks|thank very|so much"},
	{EQuestionKind::Thanks, "thanks|thank a lot"},
	{EQuestionKind::Project, "what is|are project|game"},
	{EQuestionKind::Project, "what is|are in|inside|about project|game"},
	{EQuestionKind::Project, "what is project|game about"},
	{EQuestionKind::Project, "what does project|game contain|have|include|do"},
	{EQuestionKind::Project, "what does project|game consist of"},
	{EQuestionKind::Project, "explain|describe|summarize|summarise|show|about|overview project|game"},
	{EQuestionKind::Project, "which|what project|game is open|opened|loaded|this|it"},
	{EQuestionKind::Project, "which|what kind|sort|type of project|game is this|it"},
	{EQuestionKind::Project, "give|show overview|summary of project|game"},
	{EQuestionKind::Project, "overview|summary of project|game"},
	{EQuestionKind::Project, "project overview|summary"},
	{EQuestionKind::Source, "what does {file} say|contain|do|have|set"},
	{EQuestionKind::Source, "what is in|inside {file}"},
	{EQuestionKind::Source, "what is|says {file}"},
	{EQuestionKind::Source, "show|read|open|print|explain|describe|summarize|display|list {file}"},
	{EQuestionKind::Source, "{file}"},
	{EQuestionKind::Declaration, "show|read|explain|give|print source|code|declaration|definition|sources of|for {subject}"},
	{EQuestionKind::Declaration, "source|code|declaration|definition|sources of|for {subject}"},
	{EQuestionKind::Declaration, "where|how is|are {subject} declared|defined|implemented"},
	{EQuestionKind::Declaration, "show|explain|describe|read c++ class|struct|enum|function {subject}"},
	{EQuestionKind::Declaration, "show|explain|describe|read class|struct|enum {subject}"},
	{EQuestionKind::Declaration, "what does class|struct|enum {subject} do|declare|have|look like"},
	{EQuestionKind::Declaration, "what does class|struct|enum {subject} do|declare|have"},
	{EQuestionKind::Picture, "show|draw|display|see|view graph of|in {bp}"},
	{EQuestionKind::Picture, "show|draw|display|see|view {bp's} graph"},
	{EQuestionKind::Picture, "show|draw|display|see|view {bp's} {subject} graph"},
	{EQuestionKind::Picture, "show|draw|display|see|view graph {subject} of|in {bp}"},
	{EQuestionKind::Picture, "show|draw|display|see|view {subject} graph of|in {bp}"},
	{EQuestionKind::Picture, "show|draw|display|see|view graph"},
	{EQuestionKind::Picture, "show|draw|display|see|view graph {subject}"},
	{EQuestionKind::Picture, "show|draw|display|see|view {subject} graph"},
	{EQuestionKind::Picture, "what does graph of {bp} look like"},
	{EQuestionKind::Picture, "what does {bp's} graph look like"},
	{EQuestionKind::Picture, "what does graph look like"},
	{EQuestionKind::Picture, "what does {subject} look like"},
	{EQuestionKind::Picture, "show|display|see|view viewport|scene|level|editor|window|screen"},
	{EQuestionKind::Picture, "take|make|give|show|draw|get screenshot|picture|image|photo of|from {subject}"},
	{EQuestionKind::Picture, "take|make|give|show|draw|get screenshot|picture|image|photo"},
	{EQuestionKind::Picture, "screenshot|picture|image of|from {subject}"},
	{EQuestionKind::Picture, "screenshot|picture"},
	{EQuestionKind::AllOverviews, "what do {assets} do"},
	{EQuestionKind::AllOverviews, "what do {assets} in|of project|game do"},
	{EQuestionKind::AllOverviews, "what does each|every {assets} do"},
	{EQuestionKind::AllOverviews, "explain|describe|summarize|summarise {assets}"},
	{EQuestionKind::AllOverviews, "explain|describe|summarize|summarise {assets} of|in project|game"},
	{EQuestionKind::ProjectUse, "which|what {assets} use|uses|call|calls|set|sets|read|reads|change|changes {subject}"},
	{EQuestionKind::ProjectUse, "which|what {assets} reference|references|have|has|contain {subject}"},
	{EQuestionKind::ProjectUse, "which|what {assets} refer|refers {subject}"},
	{EQuestionKind::ProjectUse, "where in project|game is|are {subject} used|set|changed|read|modified|called|referenced"},
	{EQuestionKind::ProjectUse, "where is|are {subject} used|set|changed|read|modified|called|referenced in|across|throughout project|game"},
	{EQuestionKind::ProjectUse, "where else is|are {subject} used|set|changed|read|modified|called|referenced"},
	{EQuestionKind::ProjectUse, "where do|does i|we use|call|set|read|change|reference {subject}"},
	{EQuestionKind::ProjectUse, "is|are {subject} used|set|called|read|referenced anywhere"},
	{EQuestionKind::ProjectUse, "find|show|list uses|usages|users|references|callers|calls of {subject}"},
	{EQuestionKind::ProjectUse, "find|show|list references|usages|uses|calls {subject}"},
	{EQuestionKind::ProjectUse, "uses|usages|users|references|callers of {subject}"},
	{EQuestionKind::ProjectUse, "who|what depends|relies on {subject}"},
	{EQuestionKind::ProjectUse, "who|what refers {subject}"},
	{EQuestionKind::ProjectUse, "find {subject}"},
	{EQuestionKind::Dependencies, "what does {bp} depend|rely on"},
	{EQuestionKind::Dependencies, "what does {bp} use|reference|need|load"},
	{EQuestionKind::Dependencies, "what does {bp} refer"},
	{EQuestionKind::Dependencies, "what are {bp's} dependencies|references"},
	{EQuestionKind::Dependencies, "which|what dependencies does {bp} have"},
	{EQuestionKind::Dependencies, "dependencies of {bp}"},
	{EQuestionKind::AssetInfo, "how big|large|old is {bp}"},
	{EQuestionKind::AssetInfo, "what|which kind|type|sort|class of is {bp}"},
	{EQuestionKind::AssetInfo, "what|which kind|type|sort|class is {bp}"},
	{EQuestionKind::AssetInfo, "where is {asset}"},
	{EQuestionKind::AssetInfo, "where is {asset} stored|saved|located|kept"},
	{EQuestionKind::AssetInfo, "when was|is {asset} changed|saved|modified|edited"},
	{EQuestionKind::AssetInfo, "info|information|details|facts about|on|of|for {bp}"},
	{EQuestionKind::AssetInfo, "get|show|give|list info|information|details|facts about|on|of|for {bp}"},
	{EQuestionKind::Unknown, "what|how about {bp's} {list}"},
	{EQuestionKind::Unknown, "what|how about {list}"},
	{EQuestionKind::Unknown, "{bp's} {list}"},
	{EQuestionKind::Unknown, "{list}"},
	{EQuestionKind::Function, "what|how about {bp's} {subject} function|macro|event"},
	{EQuestionKind::Function, "what|how about {bp's} function|macro|event {subject}"},
	{EQuestionKind::Function, "what|how about function|macro|event {subject}"},
	{EQuestionKind::Again, "what|how about {subject}"},
	{EQuestionKind::Again, "same|likewise for|of|with {subject}"},
	{EQuestionKind::WhenEvent, "what happens|happen in|with {bp} when|whenever|once|after|on|if|as {subject}"},
	{EQuestionKind::WhenEvent, "what happens|happen {bp} when|whenever|once|after|on|if|as {subject}"},
	{EQuestionKind::WhenEvent, "what happens|happen when|whenever|once|after|on|if|as {subject} in|of|with {bp}"},
	{EQuestionKind::WhenEvent, "what does|will {bp} do when|whenever|once|after|on|if|as {subject}"},
	{EQuestionKind::WhenEvent, "what does|will happen when|whenever|once|after|on|if|as {subject}"},
	{EQuestionKind::WhenEvent, "what happens|happen when|whenever|once|after|on|if|as {subject}"},
	{EQuestionKind::WhenEvent, "in {bp} what happens when|whenever|once|after|on|if|as {subject}"},
	{EQuestionKind::WhenEvent, "when|whenever|once|after|on|if|as {subject} what happens in {bp}"},
	{EQuestionKind::WhenEvent, "when|whenever|once|after|on|if|as {subject} what does {bp} do"},
	{EQuestionKind::WhenEvent, "when|whenever|once|after|on|if|as {subject} what happens"},
	{EQuestionKind::WhenEvent, "how does {bp} react|respond|reacts|responds {subject}"},
	{EQuestionKind::WhenEvent, "how does {bp} handle|handles {subject}"},
	{EQuestionKind::WhenEvent, "explain|describe what happens when|whenever|once|after|on|if|as {subject}"},
	{EQuestionKind::Unknown, "which|what|list|show {list} does|do|are|of|in|has {bp} have|has|there"},
	{EQuestionKind::Unknown, "which|what {list} does|has|are|do in|of {bp}"},
	{EQuestionKind::Unknown, "which|what {list} are there in|of {bp}"},
	{EQuestionKind::Unknown, "which|what {list} does|has {bp}"},
	{EQuestionKind::Unknown, "which|what {list} does {bp} use|uses|contain|define"},
	{EQuestionKind::Unknown, "how many {list} does {bp} have"},
	{EQuestionKind::Unknown, "list|show {list} of|in {bp}"},
	{EQuestionKind::Unknown, "what are {list} of|in {bp}"},
	{EQuestionKind::Unknown, "what are {bp's} {list}"},
	{EQuestionKind::Unknown, "list|show|explain|describe {bp's} {list}"},
	{EQuestionKind::Unknown, "what are {bp} {list}"},
	{EQuestionKind::Unknown, "list|show {bp} {list}"},
	{EQuestionKind::Unknown, "{list} of|in {bp}"},
	{EQuestionKind::VariableUse, "where is|are variable {subject} used|set|changed|read|modified|called in|by|of {bp}"},
	{EQuestionKind::VariableUse, "where is|are {subject} used|set|changed|read|modified|called in|by|of {bp}"},
	{EQuestionKind::VariableUse, "where is|are variable {subject} used|set|changed|read|modified|called"},
	{EQuestionKind::VariableUse, "where is|are {subject} used|set|changed|read|modified|called"},
	{EQuestionKind::VariableUse, "where does {bp} use|set|change|read variable {subject}"},
	{EQuestionKind::VariableUse, "where does {bp} use|set|change|read {subject}"},
	{EQuestionKind::VariableUse, "who|what uses|sets|changes|reads {subject} in|of {bp}"},
	{EQuestionKind::VariableUse, "how is {subject} used|set|changed in {bp}"},
	{EQuestionKind::VariableUse, "where is|are {bp's} {subject} used|set|changed|read|modified|called"},
	{EQuestionKind::VariableUse, "who|what uses|sets|changes|reads {bp's} {subject}"},
	{EQuestionKind::ProjectUse, "who|what uses|sets|changes|reads|calls|references|modifies {subject}"},
	{EQuestionKind::Function, "what does function|macro|event {subject} of|in|on {bp} do"},
	{EQuestionKind::Function, "what does function|macro|event {subject} do in|on {bp}"},
	{EQuestionKind::Function, "what does {subject} function|macro|event of|in {bp} do"},
	{EQuestionKind::Function, "explain|describe function|macro|event {subject} of|in {bp}"},
	{EQuestionKind::Function, "explain|describe {subject} function|macro|event of|in {bp}"},
	{EQuestionKind::Function, "how does function|macro|event {subject} of|in {bp} work"},
	{EQuestionKind::Function, "what does function|macro|event {subject} do"},
	{EQuestionKind::Function, "explain|describe function|macro|event {subject}"},
	{EQuestionKind::Function, "what does {subject} of|in {bp} do"},
	{EQuestionKind::Function, "what does {subject} do in {bp}"},
	{EQuestionKind::Function, "explain|describe {subject} of|in {bp}"},
	{EQuestionKind::Function, "what does {bp's} function|macro|event {subject} do"},
	{EQuestionKind::Function, "what does {bp's} {subject} function|macro|event do"},
	{EQuestionKind::Function, "what does {bp's} {subject} do"},
	{EQuestionKind::Function, "how does {bp's} {subject} work"},
	{EQuestionKind::Function, "explain|describe {bp's} {subject} function|macro|event"},
	{EQuestionKind::Function, "explain|describe {bp's} {subject}"},
	{EQuestionKind::Function, "what is {bp's} {subject}"},
	{EQuestionKind::Function, "what is {subject} in|of {bp}"},
	{EQuestionKind::Overview, "what does {bp} do"},
	{EQuestionKind::Overview, "what is {bp} doing|for"},
	{EQuestionKind::Overview, "what is {bp}"},
	{EQuestionKind::Overview, "what {bp} does"},
	{EQuestionKind::Overview, "how does {bp} work"},
	{EQuestionKind::Overview, "explain|describe how {bp} works"},
	{EQuestionKind::Overview, "explain|describe what {bp} does"},
	{EQuestionKind::Overview, "explain|describe|summarize|summarise|read|inspect {bp}"},
	{EQuestionKind::Overview, "about {bp}"},
	{EQuestionKind::Overview, "what does|do {subject} do"},
	{EQuestionKind::Overview, "explain|describe {subject}"},
	{EQuestionKind::WhenEvent, "what happens {subject} in {bp}"},
	{EQuestionKind::WhenEvent, "what does {bp} do {subject}"},
	{EQuestionKind::Function, "how does {bp} {subject}"},
};

constexpr std::size_t MaxSlots = 16;

struct FListWord
{
	std::string_view Word;
	EQuestionKind Kind;
};

constexpr FListWord ListWords[] = {
	{"variables", EQuestionKind::Variables},
	{"variable", EQuestionKind::Variables},
	{"functions", EQuestionKind::Functions},
	{"function", EQuestionKind::Functions},
	{"macros", EQuestionKind::Macros},
	{"events", EQuestionKind::Events},
	{"graphs", EQuestionKind::Graphs},
	{"components", EQuestionKind::Components},
};

struct FAssetWords
{
	std::string_view Words;
	const char* Class;
};

constexpr FAssetWords AssetWords[] = {
	{"blueprints|bps", "Blueprint"},
	{"levels|maps|worlds", "World"},
	{"widgets", "WidgetBlueprint"},
	{"materials", "MaterialInterface"},
	{"textures", "Texture"},
	{"meshes", "StreamableRenderAsset"},
	{"sounds", "SoundBase"},
	{"animations", "AnimationAsset"},
	{"tables", "DataTable"},
	{"structs|structures", "UserDefinedStruct"},
	{"enums|enumerations", "UserDefinedEnum"},
	{"assets|files|content", ""},
};

}

const std::vector<FPattern>& GetPatterns()
{
	static const std::vector<FPattern> Patterns = []
	{
		std::vector<FPattern> All;
		for (const FPatternRow& Row : PatternRows)
		{
			All.push_back({Row.Kind, SplitWords(Row.Text, MaxSlots)});
		}
		return All;
	}();
	return Patterns;
}

EQuestionKind ListKind(std::string_view Word)
{
	const auto Row = std::find_if(std::begin(ListWords), std::end(ListWords), [Word](const FListWord& Candidate)
		{ return EqualIgnoringCase(Candidate.Word, Word); });
	return Row == std::end(ListWords) ? EQuestionKind::Unknown : Row->Kind;
}

const char* FindAssetClass(std::string_view Word)
{
	const auto Row = std::find_if(std::begin(AssetWords), std::end(AssetWords), [Word](const FAssetWords& Candidate)
		{ return IsOneOf(Word, Candidate.Words); });
	return Row == std::end(AssetWords) ? nullptr : Row->Class;
}

std::string_view GetQuestionWords()
{
	return "what|which|where|when|does|explain|describe|summarize|happens|list|show|used|called|variables|variable|functions|function|"
		   "events|event|macros|graphs|graph|components|project|blueprints|levels|assets|contain|picture|screenshot";
}

}
