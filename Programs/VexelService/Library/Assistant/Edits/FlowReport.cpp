#include "Assistant/Edits/FlowReport.h"

#include "Assistant/AssetFinder.h"
#include "Assistant/Markdown.h"
#include "Assistant/Words.h"

#include <algorithm>
#include <iterator>
#include <set>

namespace VexelService
{

namespace
{

constexpr std::size_t MaxMessageBytes = 400;

/** What a compiler's message is about, by its telling words, and what to do about it. */
struct FAdvice
{
	std::string_view Words;
	const char* Advice;
};

constexpr FAdvice Advices[] = {
	{"must have an input wired into it", "Connect that pin: its value comes by reference, so that a text in it is not enough."},
	{"undetermined", "Connect one of its pins to something whose type is known."},
	{"unknown type", "Connect one of its pins to something whose type is known."},
	{"wildcard", "Connect one of its pins to something whose type is known."},
	{"not compatible", "Break that wire, or put a node between that converts the value."},
	{"is not a", "Its target is another kind of object: connect one of the right class, or cast to it."},
	{"target", "Connect its Target pin to an object of that class, or call it in a Blueprint of that class."},
	{"could not find a function", "The function was renamed or removed: remove the node, or choose the function anew."},
	{"could not find a variable", "The variable was renamed or removed: create it again, or remove the node."},
	{"could not be found", "What it names was renamed or removed: create it again, or remove the node."},
	{"missing", "What it needs is not there any more: create it again, or remove the node."},
	{"no longer exists", "The pin is gone from its node: connect what was there elsewhere, then refresh the node."},
	{"class", "Choose a class in its Class pin."},
	{"already", "Two things have one name: rename one of them."},
	{"duplicate", "Two things have one name: rename one of them."},
	{"infinite", "A wire leads back to where it came from: break it."},
	{"cycle", "A wire leads back to where it came from: break it."},
	{"latent", "A step that waits cannot stand in a function: move it to an event."},
	{"not be allowed in", "That node cannot stand in this graph: move it to an event graph."},
};

const char* FindAdvice(const std::string& Message)
{
	const std::string Lower = LowerCase(Message);
	const auto Found = std::find_if(
		std::begin(Advices), std::end(Advices), [&Lower](const FAdvice& Row)
		{ return Lower.find(Row.Words) != std::string::npos; });
	return Found == std::end(Advices) ? nullptr : Found->Advice;
}

std::string OneLine(std::string Text)
{
	std::replace(Text.begin(), Text.end(), '\n', ' ');
	return Shortened(std::move(Text), MaxMessageBytes);
}

std::vector<std::string> MessagesOf(const FCompileOutcome& Outcome, bool bErrors)
{
	std::vector<std::string> Texts;
	std::set<std::string> Seen;
	for (const FCompilerMessage& Message : Outcome.Messages)
	{
		const bool bWanted = bErrors ? Message.IsError() : Message.IsWarning();
		if (!bWanted || !Seen.insert(Message.Text).second)
		{
			continue;
		}
		const char* const Advice = bErrors ? FindAdvice(Message.Text) : nullptr;
		Texts.push_back(OneLine(Message.Text) + (Advice ? std::string("\n  ") + Advice : std::string()));
	}
	return Texts;
}

}

std::string PlainError(const std::string& Error)
{
	constexpr std::string_view Repeated = "Blueprint manipulation failed: ";
	std::string Plain = Error;
	for (std::size_t At = Plain.find(Repeated); At != std::string::npos; At = Plain.find(Repeated))
	{
		Plain.erase(At, Repeated.size());
	}
	return OneLine(std::move(Plain));
}

std::string DescribeCompile(const FCompileOutcome& Outcome, const std::string& Blueprint)
{
	if (!Outcome.bDone)
	{
		std::vector<std::string> Reasons;
		std::transform(Outcome.Errors.begin(), Outcome.Errors.end(), std::back_inserter(Reasons), PlainError);
		return "**" + Blueprint + "** could not be compiled" + (Reasons.empty() ? ".\n" : ". The editor says:\n\n" + BulletList(Reasons));
	}
	const std::vector<std::string> Errors = MessagesOf(Outcome, true);
	const std::vector<std::string> Warnings = MessagesOf(Outcome, false);
	std::string Text = "**" + Blueprint + "** ";
	if (Outcome.bSuccess)
	{
		Text += Warnings.empty() ? "compiles without errors.\n" : "compiles, with " + CountOf(Warnings.size(), "warning") + ":\n\n";
		return Text + BulletList(Warnings);
	}
	Text += "does not compile";
	Text += Errors.empty() ? ", and the compiler does not say why.\n"
						   : ". " + UpperFirst(CountOf(Errors.size(), "error")) + ":\n\n" + BulletList(Errors);
	return Warnings.empty() ? Text : Text + "\nBeside that " + CountOf(Warnings.size(), "warning") + ":\n\n" + BulletList(Warnings);
}

std::string DescribeFailure(const FRunOutcome& Outcome)
{
	std::vector<std::string> Reasons;
	for (const std::string& Failure : Outcome.Failures)
	{
		Reasons.push_back(PlainError(Failure));
	}
	std::string Text = "I could not do that. The editor says:\n\n" + BulletList(Reasons) + "\n";
	return Text +
		(Outcome.bTakenBack ? "I removed what I had begun, so the Blueprint is as it was.\n"
							: "I could not remove all that I had begun: undo takes it back step by step.\n");
}

}
