#include "Assistant/Conversation.h"

#include "Assistant/Edits/EditRequest.h"
#include "Assistant/Words.h"

#include <utility>
#include <vector>

namespace VexelService
{

namespace
{

// Questions about one thing of a Blueprint or a project, by its name.
bool HasNamedSubject(EQuestionKind Kind)
{
	return Kind == EQuestionKind::VariableUse || Kind == EQuestionKind::Function || Kind == EQuestionKind::ProjectUse ||
		Kind == EQuestionKind::Declaration;
}

bool IsPath(const std::string& Name)
{
	return StartsWith(Name, "/");
}

// The question before, about what this message names.
FQuestion Repeat(const FQuestion& Named, const FTopic& Topic)
{
	FQuestion Question = Topic.Question;
	const bool bAboutAsset = !Named.Blueprint.empty();
	if (Question.Kind == EQuestionKind::Unknown)
	{
		Question.Kind = bAboutAsset ? EQuestionKind::Overview : EQuestionKind::Function;
	}
	if (bAboutAsset)
	{
		const bool bAssetWasSubject = Question.Kind == EQuestionKind::ProjectUse && Question.Blueprint.empty();
		(bAssetWasSubject ? Question.Subject : Question.Blueprint) = Named.Blueprint;
		// What was asked about one function of a Blueprint cannot be asked of another; the other itself can.
		Question.Kind = Question.Kind == EQuestionKind::Function ? EQuestionKind::Overview : Question.Kind;
		return Question;
	}
	if (!HasNamedSubject(Question.Kind) && Question.Kind != EQuestionKind::WhenEvent && Question.Kind != EQuestionKind::Source)
	{
		Question.Kind = EQuestionKind::Function;
	}
	Question.Subject = Named.Subject;
	return Question;
}

// The Blueprint that was read for an answer is the one that was meant, however it was called. Several are no one's, but the one that
// the conversation was about before may have been looked into first.
void FollowReading(FTopic& Topic, std::vector<std::string> Paths)
{
	if (Paths.size() > 1)
	{
		std::erase(Paths, Topic.ReadPath);
	}
	if (Paths.size() != 1)
	{
		return;
	}
	Topic.ReadPath = Paths.front();
	Topic.Blueprint = Paths.front();
	Topic.Question.Blueprint = Topic.Question.Blueprint.empty() ? std::string() : Topic.Blueprint;
}

void Follow(FTopic& Topic, const FEditRequest& Edit)
{
	Topic.Blueprint = IsBackReference(Edit.Blueprint) ? Topic.Blueprint : Edit.Blueprint;
	Topic.Subject = Edit.Subject.empty() ? Topic.Subject : Edit.Subject;
	Topic.LastSubject = Edit.Subject;
}

void Follow(FTopic& Topic, const FQuestion& Question)
{
	Topic.LastSubject = HasNamedSubject(Question.Kind) ? Question.Subject : std::string();
	if (Question.Kind < EQuestionKind::Overview)
	{
		return;
	}
	if (!IsBackReference(Question.Blueprint))
	{
		Topic.Blueprint = Question.Blueprint;
	}
	if (HasNamedSubject(Question.Kind) && !Question.Subject.empty())
	{
		Topic.Subject = Question.Subject;
	}
	Topic.Question = Question;
}

}

std::vector<std::string> OpenAssetNames(const FChatRequest& Request)
{
	std::vector<std::string> Names;
	for (const std::string& Asset : Request.OpenAssets)
	{
		Names.push_back(ShortName(Asset));
	}
	return Names;
}

FTopic ReadTopic(const FChatRequest& Request)
{
	const std::vector<std::string> OpenNames = OpenAssetNames(Request);
	FTopic Topic;
	bool bEdited = false;
	for (std::size_t Index = 0; Index + 1 < Request.Messages.size(); ++Index)
	{
		const FChatMessage& Message = Request.Messages[Index];
		if (Message.Role == "user")
		{
			const std::optional<FEditRequest> Edit = ReadEditRequest(Message.Text, OpenNames, Topic.LastSubject);
			bEdited = Edit.has_value();
			Edit ? Follow(Topic, *Edit) : Follow(Topic, ResolveReferences(ReadQuestion(Message.Text, OpenNames), Topic));
		}
		else if (Message.Role == "assistant")
		{
			// What an edit reads first it edits; the others are read for what uses that.
			const bool bFirst = bEdited && !Message.ReadBlueprints.empty();
			FollowReading(Topic, bFirst ? std::vector<std::string>{Message.ReadBlueprints.front()} : Message.ReadBlueprints);
		}
	}
	return Topic;
}

FQuestion ResolveReferences(FQuestion Question, const FTopic& Topic)
{
	if (Question.Kind == EQuestionKind::Again)
	{
		Question = Repeat(Question, Topic);
	}
	const bool bSubjectRefers = HasNamedSubject(Question.Kind) && IsBackReference(Question.Subject);
	if (bSubjectRefers)
	{
		Question.Subject = Topic.Subject;
	}
	if (bSubjectRefers && Question.Subject.empty() && !Topic.Blueprint.empty())
	{
		// "Where is it used?", after questions about a Blueprint.
		Question.Kind = EQuestionKind::ProjectUse;
		Question.Subject = IsPath(Topic.Blueprint) ? ShortName(Topic.Blueprint) : Topic.Blueprint;
	}
	return Question;
}

}
