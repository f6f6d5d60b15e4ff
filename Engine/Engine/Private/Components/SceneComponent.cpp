#include "Components/SceneComponent.h"

USceneComponent::USceneComponent(const FObjectInitializer& ObjectInitializer)
	: Super(ObjectInitializer)
	, bAbsoluteLocation(false)
	, bAbsoluteRotation(false)
	, bAbsoluteScale(false)
	, bVisible(true)
	, bHiddenInGame(false)
{
	bAutoActivate = true;
}

FTransform USceneComponent::GetRelativeTransform() const
{
	return FTransform(RelativeRotation, RelativeLocation, RelativeScale3D);
}

void USceneComponent::SetRelativeLocation(FVector NewLocation)
{
	RelativeLocation = NewLocation;
}

void USceneComponent::SetRelativeRotation(FRotator NewRotation)
{
	RelativeRotation = NewRotation;
}

void USceneComponent::SetRelativeScale3D(FVector NewScale3D)
{
	RelativeScale3D = NewScale3D;
}

void USceneComponent::SetRelativeTransform(const FTransform& NewTransform)
{
	RelativeLocation = NewTransform.GetLocation();
	RelativeRotation = NewTransform.Rotator();
	RelativeScale3D = NewTransform.GetScale3D();
}

FTransform USceneComponent::K2_GetComponentToWorld() const
{
	const FTransform Relative = GetRelativeTransform();
	if (!AttachParent)
	{
		return Relative;
	}
	FTransform Result = Relative * AttachParent->GetComponentTransform();
	if (bAbsoluteLocation)
	{
		Result.SetLocation(Relative.GetLocation());
	}
	if (bAbsoluteRotation)
	{
		Result.SetRotation(Relative.GetRotation());
	}
	if (bAbsoluteScale)
	{
		Result.SetScale3D(Relative.GetScale3D());
	}
	return Result;
}

const FTransform& USceneComponent::GetComponentTransform() const
{
	ComponentToWorld = K2_GetComponentToWorld();
	return ComponentToWorld;
}

FVector USceneComponent::K2_GetComponentLocation() const
{
	return K2_GetComponentToWorld().GetLocation();
}

FRotator USceneComponent::K2_GetComponentRotation() const
{
	return K2_GetComponentToWorld().Rotator();
}

FVector USceneComponent::K2_GetComponentScale() const
{
	return K2_GetComponentToWorld().GetScale3D();
}

FVector USceneComponent::GetForwardVector() const
{
	return K2_GetComponentToWorld().GetRotation().RotateVector(FVector(1.0, 0.0, 0.0));
}

FVector USceneComponent::GetRightVector() const
{
	return K2_GetComponentToWorld().GetRotation().RotateVector(FVector(0.0, 1.0, 0.0));
}

FVector USceneComponent::GetUpVector() const
{
	return K2_GetComponentToWorld().GetRotation().RotateVector(FVector(0.0, 0.0, 1.0));
}

void USceneComponent::SetWorldTransform(const FTransform& NewTransform)
{
	SetRelativeTransform(AttachParent ? NewTransform.GetRelativeTransform(AttachParent->GetComponentTransform()) : NewTransform);
}

void USceneComponent::SetVisibility(bool bNewVisibility, bool bPropagateToChildren)
{
	bVisible = bNewVisibility;
	if (bPropagateToChildren)
	{
		for (USceneComponent* const Child : AttachChildren)
		{
			Child->SetVisibility(bNewVisibility, true);
		}
	}
}

bool USceneComponent::IsAttachedTo(const USceneComponent* TestComp) const
{
	for (const USceneComponent* Component = AttachParent; Component; Component = Component->AttachParent)
	{
		if (Component == TestComp)
		{
			return true;
		}
	}
	return false;
}

void USceneComponent::SetupAttachment(USceneComponent* InParent, FName InSocketName)
{
	if (InParent == this || (InParent && InParent->IsAttachedTo(this)))
	{
		return;
	}
	if (AttachParent)
	{
		AttachParent->AttachChildren.Remove(this);
	}
	AttachParent = InParent;
	AttachSocketName = InSocketName;
	if (AttachParent)
	{
		AttachParent->AttachChildren.AddUnique(this);
	}
}

bool USceneComponent::AttachToComponent(USceneComponent* InParent, const FAttachmentTransformRules& AttachmentRules, FName InSocketName)
{
	if (!InParent || InParent == this || InParent->IsAttachedTo(this))
	{
		return false;
	}
	Modify();
	InParent->Modify();
	if (AttachParent)
	{
		AttachParent->Modify();
	}
	const FTransform World = GetComponentTransform();
	const FTransform Relative = GetRelativeTransform();
	SetupAttachment(InParent, InSocketName);
	const FTransform KeptWorld = World.GetRelativeTransform(InParent->GetComponentTransform());
	const auto Choose = [](EAttachmentRule Rule, const auto& KeepRelative, const auto& KeepWorld, const auto& Snap)
	{
		return Rule == EAttachmentRule::KeepRelative ? KeepRelative : Rule == EAttachmentRule::KeepWorld ? KeepWorld
																										 : Snap;
	};
	RelativeLocation = Choose(AttachmentRules.LocationRule, Relative.GetLocation(), KeptWorld.GetLocation(), FVector(FVector::ZeroVector));
	RelativeRotation = Choose(AttachmentRules.RotationRule, Relative.Rotator(), KeptWorld.Rotator(), FRotator(FRotator::ZeroRotator));
	RelativeScale3D = Choose(AttachmentRules.ScaleRule, Relative.GetScale3D(), KeptWorld.GetScale3D(), FVector(FVector::OneVector));
	return true;
}

void USceneComponent::DetachFromComponent(const FDetachmentTransformRules& DetachmentRules)
{
	if (!AttachParent)
	{
		return;
	}
	if (DetachmentRules.bCallModify)
	{
		Modify();
		AttachParent->Modify();
	}
	const FTransform World = GetComponentTransform();
	AttachParent->AttachChildren.Remove(this);
	AttachParent = nullptr;
	AttachSocketName = NAME_None;
	if (DetachmentRules.LocationRule == EDetachmentRule::KeepWorld)
	{
		RelativeLocation = World.GetLocation();
	}
	if (DetachmentRules.RotationRule == EDetachmentRule::KeepWorld)
	{
		RelativeRotation = World.Rotator();
	}
	if (DetachmentRules.ScaleRule == EDetachmentRule::KeepWorld)
	{
		RelativeScale3D = World.GetScale3D();
	}
}

FName USceneComponent::GetRelativeLocationPropertyName()
{
	return FName(TEXT("RelativeLocation"));
}

FName USceneComponent::GetRelativeRotationPropertyName()
{
	return FName(TEXT("RelativeRotation"));
}

FName USceneComponent::GetRelativeScale3DPropertyName()
{
	return FName(TEXT("RelativeScale3D"));
}

FAttachmentTransformRules FAttachmentTransformRules::KeepRelativeTransform(EAttachmentRule::KeepRelative, false);
FAttachmentTransformRules FAttachmentTransformRules::KeepWorldTransform(EAttachmentRule::KeepWorld, false);
FAttachmentTransformRules FAttachmentTransformRules::SnapToTargetNotIncludingScale(
	EAttachmentRule::SnapToTarget, EAttachmentRule::SnapToTarget, EAttachmentRule::KeepWorld, false);
FAttachmentTransformRules FAttachmentTransformRules::SnapToTargetIncludingScale(EAttachmentRule::SnapToTarget, false);
FDetachmentTransformRules FDetachmentTransformRules::KeepRelativeTransform(EDetachmentRule::KeepRelative, true);
FDetachmentTransformRules FDetachmentTransformRules::KeepWorldTransform(EDetachmentRule::KeepWorld, true);
