#include "Lum/LumStructureEdit.h"

#include "Engine/Blueprint.h"
#include "Kismet2/BlueprintEditorUtils.h"
#include "Kismet2/KismetEditorUtilities.h"

namespace
{
FLumEditBatch*& GetOpenBatch()
{
	static FLumEditBatch* Batch = nullptr;
	return Batch;
}
}

UClass* LumSkeleton::Get(UBlueprint& Blueprint)
{
	if (!Blueprint.SkeletonGeneratedClass)
	{
		FKismetEditorUtilities::GenerateBlueprintSkeleton(&Blueprint);
	}
	return Blueprint.SkeletonGeneratedClass;
}

FLumEditBatch::FLumEditBatch(UBlueprint& InBlueprint)
	: Blueprint(&InBlueprint)
{
	check(IsInGameThread() && !GetOpenBatch());
	GetOpenBatch() = this;
}

FLumEditBatch::~FLumEditBatch()
{
	GetOpenBatch() = nullptr;
	Update();
}

FLumEditBatch* FLumEditBatch::Find(const UBlueprint& Blueprint)
{
	FLumEditBatch* const Batch = GetOpenBatch();
	return Batch && Batch->Blueprint.Get() == &Blueprint ? Batch : nullptr;
}

void FLumEditBatch::BringUpToDate(UBlueprint& Blueprint)
{
	FLumEditBatch* const Batch = Find(Blueprint);
	if (Batch && Batch->bOutOfDate)
	{
		Batch->Update();
	}
}

void FLumEditBatch::BringUpToDateForName(UBlueprint& Blueprint, FName Name)
{
	const FLumEditBatch* const Batch = Find(Blueprint);
	if (Batch && Batch->FreedNames.Contains(Name))
	{
		BringUpToDate(Blueprint);
	}
}

bool FLumEditBatch::TakeSuggestion()
{
	constexpr int32 MaxSuggestions = 20;
	FLumEditBatch* const Batch = GetOpenBatch();
	return !Batch || ++Batch->NumSuggestions <= MaxSuggestions;
}

void FLumEditBatch::Update()
{
	bOutOfDate = false;
	FreedNames.Empty();
	if (UBlueprint* const Edited = Blueprint.Get())
	{
		FBlueprintEditorUtils::MarkBlueprintAsStructurallyModified(Edited);
	}
}

FLumStructureEdit::FLumStructureEdit(const FText& Title, UBlueprint& InBlueprint, ELumSkeleton InSkeleton)
	: Transaction(Title)
	, Blueprint(InBlueprint)
	, Skeleton(InSkeleton)
	, bWasBeingCompiled(InBlueprint.bBeingCompiled)
{
	// What has changed is told from it at the end: a Blueprint that was only loaded has none yet.
	FKismetEditorUtilities::GenerateBlueprintSkeleton(&Blueprint);
	Blueprint.Modify();
	Blueprint.bBeingCompiled = true;
}

FLumStructureEdit::~FLumStructureEdit()
{
	FLumEditBatch* const Batch = FLumEditBatch::Find(Blueprint);
	if (Batch && Skeleton == ELumSkeleton::Later && !bIsMarked && !bWasBeingCompiled)
	{
		Batch->bOutOfDate = true;
	}
	else if (!bIsMarked)
	{
		Mark();
	}
	Blueprint.bBeingCompiled = bWasBeingCompiled;
}

void FLumStructureEdit::Mark()
{
	LetEngineMark();
	if (FLumEditBatch* const Batch = FLumEditBatch::Find(Blueprint))
	{
		Batch->Update();
	}
	else
	{
		FBlueprintEditorUtils::MarkBlueprintAsStructurallyModified(&Blueprint);
	}
}

void FLumStructureEdit::FreeName(FName Name)
{
	if (FLumEditBatch* const Batch = FLumEditBatch::Find(Blueprint))
	{
		Batch->FreedNames.Add(Name);
	}
}

void FLumStructureEdit::LetEngineMark()
{
	Blueprint.bBeingCompiled = bWasBeingCompiled;
	bIsMarked = true;
}

void FLumStructureEdit::Cancel()
{
	Transaction.Cancel();
	bIsMarked = true;
}
