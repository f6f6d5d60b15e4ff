#include "VexelTools.h"

#include "Tools/VexelToolManager.h"

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

TVexelTaskResult<TSharedRef<FJsonObject>> FVexelTools::Call(const FString& Name, const TSharedRef<FJsonObject>& Input)
{
	const TVexelExpected<TSharedRef<FVexelTool>> Tool = FVexelToolManager::Get().FindTool(FName(*Name.Left(NAME_SIZE - 1)));
	if (Tool.HasError())
	{
		return Tool.GetError();
	}
	return Tool.GetValue()->Call(FVexelToolContext(), FVexelToolInput(Input));
}
