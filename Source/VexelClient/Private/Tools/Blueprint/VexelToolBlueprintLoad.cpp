#include "Blueprint/VexelBlueprintMapping.h"
#include "Engine/Blueprint.h"
#include "Tools/Blueprint/VexelBlueprintRequestHelper.h"
#include "Tools/VexelTool.h"
#include "Tools/VexelToolSchema.h"

namespace
{
struct FBlueprintLoadInput
{
	FString Blueprint;

	static const TVexelToolSchema<FBlueprintLoadInput>& GetSchema()
	{
		static const TVexelToolSchema<FBlueprintLoadInput> Schema =
			TVexelToolSchema<FBlueprintLoadInput>().Required(TEXT("blueprint"), &FBlueprintLoadInput::Blueprint);
		return Schema;
	}
};
}

/** "read_blueprint": answers a Blueprint's export by the property model. */
class FVexelToolBlueprintLoad : public TVexelTool<FBlueprintLoadInput>
{
public:
	using TVexelTool::TVexelTool;

protected:
	virtual TVexelTaskResult<TSharedRef<FJsonObject>> Run(const FVexelToolContext& Context, const FBlueprintLoadInput& Input) const override
	{
		const TSharedRef<FVexelBlueprintMapping> Mapping = Context.GetMapping();
		UBlueprint* Blueprint = nullptr;
		if (!Mapping->ResolveBlueprint(TVexelBlueprintId(Input.Blueprint), Blueprint))
		{
			return VEXEL_ERROR(FVexelError_ToolInvalidInput, "Blueprint not found: `%s`", *Input.Blueprint);
		}
		return FVexelBlueprintRequestHelper(*Blueprint, Mapping).Export();
	}
};

VEXEL_DEFINE_TOOL(FVexelToolBlueprintLoad)
