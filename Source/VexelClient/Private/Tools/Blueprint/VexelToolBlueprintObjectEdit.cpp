#include "Lum/LumCompound.h"
#include "Lum/LumContext.h"
#include "Lum/LumStructureEdit.h"
#include "Tools/Blueprint/VexelBlueprintDefaults.h"
#include "Tools/Blueprint/VexelBlueprintPins.h"
#include "Tools/Blueprint/VexelBlueprintRequestHelper.h"
#include "Tools/Blueprint/VexelBlueprintUsers.h"
#include "Tools/Blueprint/VexelObjectEditHints.h"
#include "Tools/Blueprint/VexelObjectEditIgnored.h"
#include "Tools/Blueprint/VexelObjectEditRequest.h"
#include "Tools/VexelTool.h"
#include "Tools/VexelToolSchema.h"

namespace
{
struct FParsedObjectEditInput
{
	FString Blueprint;
	TArray<TSharedPtr<FJsonValue>> RequestValues;

	static const TVexelToolSchema<FParsedObjectEditInput>& GetSchema()
	{
		static const TVexelToolSchema<FParsedObjectEditInput> Schema =
			TVexelToolSchema<FParsedObjectEditInput>()
				.Required(TEXT("blueprint"), &FParsedObjectEditInput::Blueprint, {.Complaint = TEXT("Missing `blueprint`")})
				.Required(TEXT("requests"), &FParsedObjectEditInput::RequestValues,
					{.bNotEmpty = true, .Complaint = TEXT("Missing or empty `requests` array")});
		return Schema;
	}

	TArray<FEditRequest> GetRequests() const
	{
		TArray<FEditRequest> Requests;
		for (const TSharedPtr<FJsonValue>& Value : RequestValues)
		{
			const TSharedPtr<FJsonObject>* Object = nullptr;
			if (Value && Value->TryGetObject(Object))
			{
				Requests.Add(FEditRequest::FromJson(**Object));
			}
		}
		return Requests;
	}
};

using FTexts = TArray<FString>;

TVexelExpected<void> Execute(const FEditRequest::FOperation& Operation, const TSharedRef<ILumCompound>& Compound, const FLumContext& Context)
{
	if (const FEditRequestOperationOnProp* const OnProp = Operation.TryGet<FEditRequestOperationOnProp>())
	{
		return OnProp->Execute(Compound, Context);
	}
	return Operation.Get<FEditRequestOperationOnVar>().Execute(Compound);
}

FString DescribeHint(const FEditRequest::FOperation& Operation, const TSharedRef<ILumCompound>& Compound)
{
	const FEditRequestOperationOnProp* const OnProp = Operation.TryGet<FEditRequestOperationOnProp>();
	return OnProp ? VexelObjectEditHints::Describe(Compound, *OnProp)
				  : VexelObjectEditHints::Describe(Compound, Operation.Get<FEditRequestOperationOnVar>());
}

/** Errors repeat what the input says, of any length. */
void AddError(FTexts& Errors, const FString& Text)
{
	constexpr int32 MaxLength = 8000;
	Errors.Add(Text.Len() <= MaxLength ? Text : Text.Left(MaxLength) + TEXT("..."));
}

void Execute(const FEditRequest& Request, const FVexelBlueprintRequestHelper& Target, FTexts& OutErrors)
{
	const TVexelExpected<TSharedRef<ILumCompound>> Compound = Request.ResolveTarget(Target);
	const FString Description = Request.Target.Describe();
	if (Compound.HasError())
	{
		AddError(OutErrors,
			FString::Printf(TEXT("Failed to resolve target '%s': %s%s"), *Description, *Compound.GetError().ToChainString(),
				*VexelObjectEditHints::Describe(Target, Request)));
		return;
	}
	const FLumContext Context(Target.GetSharedMapping());
	for (const FEditRequest::FOperation& Operation : Request.Operations)
	{
		const TVexelExpected<void> Result = Execute(Operation, Compound.GetValue(), Context);
		if (Result.HasError())
		{
			AddError(OutErrors,
				FString::Printf(TEXT("Failed to execute operation on target '%s': %s%s"), *Description, *Result.GetError().ToChainString(),
					*DescribeHint(Operation, Compound.GetValue())));
		}
	}
}

bool AnyOperation(const TArray<FEditRequest>& Requests, TFunctionRef<bool(const FEditRequest::FOperation&)> Is)
{
	return Requests.ContainsByPredicate([&Is](const FEditRequest& Request)
		{ return Request.Operations.ContainsByPredicate(Is); });
}

/** Whether it takes away or changes what links and values hang on. */
bool IsLossy(const FEditRequest::FOperation& Operation)
{
	const FEditRequestOperationOnVar* const OnVar = Operation.TryGet<FEditRequestOperationOnVar>();
	return OnVar && OnVar->Type != EVexelEditOperation::AddVariable && OnVar->Type != EVexelEditOperation::AddPin;
}

/** Whether other Blueprints may have to follow. */
bool ReachesUsers(const FEditRequest::FOperation& Operation)
{
	if (const FEditRequestOperationOnProp* const OnProp = Operation.TryGet<FEditRequestOperationOnProp>())
	{
		return OnProp->Type == EVexelEditOperation::Update && OnProp->RenamesTarget();
	}
	return IsLossy(Operation) && Operation.Get<FEditRequestOperationOnVar>().ReachesUsers();
}

/** What the requests may cost, as it is before them. */
struct FLossWatch
{
	FLossWatch(const FVexelBlueprintRequestHelper& Target)
		: Pins(Target.GetBlueprint(), Target.GetMapping())
		, Defaults(Target.GetBlueprint())
	{
	}

	FTexts DescribeLost() const
	{
		FTexts Texts = Pins.DescribeLost();
		Texts.Append(Defaults.DescribeLost());
		return Texts;
	}

	const FVexelBlueprintPins Pins;
	const FVexelBlueprintDefaults Defaults;
};

void SetTexts(FJsonObject& Object, const TCHAR* Key, const FTexts& Texts)
{
	TArray<TSharedPtr<FJsonValue>> Values;
	for (const FString& Text : Texts)
	{
		Values.Add(MakeShared<FJsonValueString>(Text));
	}
	if (!Values.IsEmpty())
	{
		Object.SetArrayField(Key, MoveTemp(Values));
	}
}

TVexelExpected<TSharedRef<FJsonObject>> Edit(const FVexelToolContext& Context, const FParsedObjectEditInput& Input)
{
	VEXEL_TRY(const FVexelBlueprintRequestHelper Target, FVexelBlueprintRequestHelper::Find(Context.GetMapping(), Input.Blueprint));
	const TArray<FEditRequest> Requests = Input.GetRequests();
	FTexts Warnings = VexelObjectEditIgnored::Describe(Input.RequestValues);
	if (AnyOperation(Requests, ReachesUsers))
	{
		Warnings.Append(VexelBlueprintUsers::Load(Target.GetBlueprint()));
	}
	TOptional<FLossWatch> Watch;
	if (AnyOperation(Requests, IsLossy))
	{
		Watch.Emplace(Target);
	}
	FTexts Errors;
	{
		const FLumEditBatch Batch(Target.GetBlueprint());
		for (const FEditRequest& Request : Requests)
		{
			Execute(Request, Target, Errors);
		}
	}
	if (Watch)
	{
		Warnings.Append(Watch->DescribeLost());
	}
	VEXEL_TRY(const TSharedRef<FJsonObject> Exported, Target.Export());
	const TSharedRef<FJsonObject> Answer = MakeShared<FJsonObject>();
	Answer->SetObjectField(TEXT("blueprint"), Exported);
	SetTexts(*Answer, TEXT("errors"), Errors);
	SetTexts(*Answer, TEXT("warnings"), Warnings);
	return Answer;
}
}

/** "object_edit": changes values, variables and user-defined pins of one Blueprint. */
class FVexelToolBlueprintObjectEdit : public TVexelTool<FParsedObjectEditInput>
{
public:
	using TVexelTool::TVexelTool;

protected:
	/** Of this tool the service expects one kind of failure. */
	virtual FVexelError MakeInputError(FVexelError&& Error) const override
	{
		return VEXEL_ERROR(FVexelError_ToolCallFailed, "%s", *Error.GetMessage());
	}

	virtual TVexelTaskResult<TSharedRef<FJsonObject>> Run(const FVexelToolContext& Context, const FParsedObjectEditInput& Input) const override
	{
		return Edit(Context, Input);
	}
};

VEXEL_DEFINE_TOOL(FVexelToolBlueprintObjectEdit)
