#include "VexelTools.h"

#include "Blueprint/VexelBlueprintMapping.h"
#include "Data/VexelChatConversation.h"
#include "Tools/Blueprint/VexelBlueprintRequestHelper.h"
#include "Tools/VexelToolManager.h"

namespace
{
/** Gives the nodes of the Blueprint their ids by having it read; what cannot be read is the tool's to complain of. */
void NameNodes(const TSharedRef<FVexelBlueprintMapping>& Mapping, const FString& BlueprintId)
{
	UBlueprint* Blueprint = nullptr;
	if (Mapping->ResolveBlueprint(TVexelBlueprintId(BlueprintId), Blueprint))
	{
		static_cast<void>(FVexelBlueprintRequestHelper(*Blueprint, Mapping).Export());
	}
}
}

TArray<FVexelToolInfo> FVexelTools::List()
{
	TArray<FVexelToolInfo> Infos;
	for (const TSharedRef<FVexelTool>& Tool : FVexelToolManager::Get().GetTools())
	{
		Infos.Add({Tool->GetName().ToString(), Tool->GetIcon().ToString(), Tool->GetProgressText(), Tool->GetDoneText(),
			Tool->ProducesResponse()});
	}
	return Infos;
}

FVexelToolSession::FVexelToolSession()
	: Conversation(MakeShared<FVexelChatConversation>())
{
}

TVexelTaskResult<TSharedRef<FJsonObject>> FVexelToolSession::Call(const FString& Name, const TSharedRef<FJsonObject>& Input)
{
	const TVexelExpected<TSharedRef<FVexelTool>> Tool = FVexelToolManager::Get().FindTool(FName(*Name.Left(NAME_SIZE - 1)));
	if (Tool.HasError())
	{
		return Tool.GetError();
	}
	FVexelToolContext Context;
	Context.Conversation = Conversation;
	FString BlueprintId;
	if (Input->TryGetStringField(TEXT("blueprint"), BlueprintId) && !Named.Contains(BlueprintId))
	{
		Named.Add(BlueprintId);
		NameNodes(Conversation->GetMapping(), BlueprintId);
	}
	return Tool.GetValue()->Call(Context, FVexelToolInput(Input));
}
