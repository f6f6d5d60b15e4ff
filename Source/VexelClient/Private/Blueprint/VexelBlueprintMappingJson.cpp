#include "Blueprint/VexelBlueprintMapping.h"

// Apart from the rest of the mapping, so that stored conversations can be read where there is no editor.

namespace
{
const TCHAR* const NodeNamesKey = TEXT("node_agent_names");
}

TSharedRef<FJsonObject> FVexelBlueprintMapping::ToJson() const
{
	const TSharedRef<FJsonObject> Object = MakeShared<FJsonObject>();
	Object->SetObjectField(NodeNamesKey, NodeNames.ToJson());
	return Object;
}

void FVexelBlueprintMapping::FromJson(const TSharedRef<FJsonObject>& Object)
{
	const TSharedPtr<FJsonObject>* Names = nullptr;
	if (Object->TryGetObjectField(NodeNamesKey, Names) && Names->IsValid())
	{
		NodeNames.FromJson(Names->ToSharedRef());
	}
}
