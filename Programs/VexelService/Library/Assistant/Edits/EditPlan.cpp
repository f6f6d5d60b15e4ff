#include "Assistant/Edits/EditPlan.h"

#include <algorithm>

namespace VexelService
{

FPlanIndex FEditPlan::AddNode(FPlanNode Node)
{
	Nodes.push_back(std::move(Node));
	return Nodes.size() - 1;
}

void FEditPlan::AddLink(FPlanIndex From, std::string_view FromPin, FPlanIndex To, std::string_view ToPin)
{
	Links.push_back({From, std::string(FromPin), To, std::string(ToPin)});
}

void FEditPlan::AddNote(std::string Note)
{
	if (std::find(Notes.begin(), Notes.end(), Note) == Notes.end())
	{
		Notes.push_back(std::move(Note));
	}
}

}
