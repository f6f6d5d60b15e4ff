// Package: /Script/Engine
#pragma once

#include "CoreMinimal.h"
#include "EngineEnums.generated.h"

/** How a camera sees. */
UENUM(BlueprintType)
namespace ECameraProjectionMode
{
enum Type : int
{
	Perspective,
	Orthographic
};
}

/** What a component changes about slopes to walk on. */
UENUM(BlueprintType)
enum EWalkableSlopeBehavior : int
{
	WalkableSlope_Default UMETA(DisplayName = "Unchanged"),
	WalkableSlope_Increase UMETA(DisplayName = "Increase"),
	WalkableSlope_Decrease UMETA(DisplayName = "Decrease"),
	WalkableSlope_Unwalkable UMETA(DisplayName = "Unwalkable")
};

/** What a time line's track gives. */
UENUM(BlueprintType)
namespace ETimelineSigType
{
enum Type : int
{
	ETS_EventSignature,
	ETS_FloatSignature,
	ETS_VectorSignature,
	ETS_LinearColorSignature,
	ETS_InvalidSignature
};
}

/** Kinds of surface that a project names. */
UENUM(BlueprintType)
enum EPhysicalSurface : int
{
	SurfaceType_Default UMETA(DisplayName = "Default"),
	SurfaceType1,
	SurfaceType2,
	SurfaceType3,
	SurfaceType4,
	SurfaceType5,
	SurfaceType6,
	SurfaceType7,
	SurfaceType8,
	SurfaceType9,
	SurfaceType10,
	SurfaceType11,
	SurfaceType12,
	SurfaceType13,
	SurfaceType14,
	SurfaceType15,
	SurfaceType16,
	SurfaceType17,
	SurfaceType18,
	SurfaceType19,
	SurfaceType20,
	SurfaceType21,
	SurfaceType22,
	SurfaceType23,
	SurfaceType24,
	SurfaceType25,
	SurfaceType26,
	SurfaceType27,
	SurfaceType28,
	SurfaceType29,
	SurfaceType30,
	SurfaceType31,
	SurfaceType32,
	SurfaceType33,
	SurfaceType34,
	SurfaceType35,
	SurfaceType36,
	SurfaceType37,
	SurfaceType38,
	SurfaceType39,
	SurfaceType40,
	SurfaceType41,
	SurfaceType42,
	SurfaceType43,
	SurfaceType44,
	SurfaceType45,
	SurfaceType46,
	SurfaceType47,
	SurfaceType48,
	SurfaceType49,
	SurfaceType50,
	SurfaceType51,
	SurfaceType52,
	SurfaceType53,
	SurfaceType54,
	SurfaceType55,
	SurfaceType56,
	SurfaceType57,
	SurfaceType58,
	SurfaceType59,
	SurfaceType60,
	SurfaceType61,
	SurfaceType62,
	SurfaceType_Max UMETA(Hidden)
};

/** Where an attached component goes. */
UENUM(BlueprintType)
namespace EAttachLocation
{
enum Type : int
{
	KeepRelativeOffset,
	KeepWorldPosition,
	SnapToTarget UMETA(DisplayName = "Snap to Target, Keep World Scale"),
	SnapToTargetIncludingScale UMETA(DisplayName = "Snap to Target, Including Scale")
};
}

/** How players share the screen. */
UENUM(BlueprintType)
namespace ESplitScreenType
{
enum Type : int
{
	None,
	TwoPlayer_Horizontal,
	TwoPlayer_Vertical,
	ThreePlayer_FavorTop,
	ThreePlayer_FavorBottom,
	ThreePlayer_Vertical,
	ThreePlayer_Horizontal,
	FourPlayer_Grid,
	FourPlayer_Vertical,
	FourPlayer_Horizontal
};
}

/** How an impulse falls with distance. */
UENUM(BlueprintType)
enum ERadialImpulseFalloff : int
{
	RIF_Constant,
	RIF_Linear
};

/** From which detail on something is there. */
UENUM(BlueprintType)
enum EDetailMode : int
{
	DM_Low UMETA(DisplayName = "Low"),
	DM_Medium UMETA(DisplayName = "Medium"),
	DM_High UMETA(DisplayName = "High"),
	DM_Epic UMETA(DisplayName = "Epic")
};

/** Whether an actor sleeps on the network. */
UENUM(BlueprintType)
enum ENetDormancy : int
{
	DORM_Never,
	DORM_Awake,
	DORM_DormantAll,
	DORM_DormantPartial,
	DORM_Initial
};

/** When an animation is brought up to date. */
UENUM(BlueprintType)
enum class EUpdateRateShiftBucket : uint8
{
	ShiftBucket0,
	ShiftBucket1,
	ShiftBucket2,
	ShiftBucket3,
	ShiftBucket4,
	ShiftBucket5
};

/** Whether characters may step up. */
UENUM(BlueprintType)
enum ECanBeCharacterBase : int
{
	ECB_No UMETA(DisplayName = "No"),
	ECB_Yes UMETA(DisplayName = "Yes"),
	ECB_Owner UMETA(DisplayName = "(Owner Determines)")
};

/** Whether navigation sees a component. */
UENUM(BlueprintType)
namespace EHasCustomNavigableGeometry
{
enum Type : int
{
	No,
	Yes,
	EvenIfNotCollidable,
	DontExport
};
}

/** What a socket is. */
UENUM(BlueprintType)
namespace EComponentSocketType
{
enum Type : int
{
	Invalid,
	Bone,
	Socket
};
}

/** Whether a projectile's way is tested. */
UENUM(BlueprintType)
namespace ESuggestProjVelocityTraceOption
{
enum Type : int
{
	DoNotTrace,
	TraceFullPath,
	OnlyTraceWhileAscending
};
}

/** Which way movement is locked. */
UENUM(BlueprintType)
enum class EPlaneConstraintAxisSetting : uint8
{
	Custom,
	X,
	Y,
	Z,
	UseGlobalPhysicsSetting
};

/** What brightness is measured in. */
UENUM(BlueprintType)
enum class ELightUnits : uint8
{
	Unitless,
	Candelas,
	Lumens,
	EV
};

/** How the game's window stands. */
UENUM(BlueprintType)
namespace EWindowMode
{
enum Type : int
{
	Fullscreen,
	WindowedFullscreen,
	Windowed
};
}

/** Why a level could not be gone to. */
UENUM(BlueprintType)
namespace ETravelFailure
{
enum Type : int
{
	NoLevel,
	LoadMapFailure,
	InvalidURL,
	PackageMissing,
	PackageVersion,
	NoDownload,
	TravelFailure,
	CheatCommands,
	PendingNetGameCreateFailure,
	CloudSaveFailure,
	ServerTravelFailure,
	ClientTravelFailure
};
}

/** What went wrong on the network. */
UENUM(BlueprintType)
namespace ENetworkFailure
{
enum Type : int
{
	NetDriverAlreadyExists,
	NetDriverCreateFailure,
	NetDriverListenFailure,
	ConnectionLost,
	ConnectionTimeout,
	FailureReceived,
	OutdatedClient,
	OutdatedServer,
	PendingConnectionFailure,
	NetGuidMismatch,
	NetChecksumMismatch
};
}

/** How a joint turns. */
UENUM(BlueprintType)
enum EAngularConstraintMotion : int
{
	ACM_Free UMETA(DisplayName = "Free"),
	ACM_Limited UMETA(DisplayName = "Limited"),
	ACM_Locked UMETA(DisplayName = "Locked")
};

/** How a joint moves. */
UENUM(BlueprintType)
enum ELinearConstraintMotion : int
{
	LCM_Free UMETA(DisplayName = "Free"),
	LCM_Limited UMETA(DisplayName = "Limited"),
	LCM_Locked UMETA(DisplayName = "Locked")
};

/** How a joint is driven. */
UENUM(BlueprintType)
namespace EAngularDriveMode
{
enum Type : int
{
	SLERP,
	TwistAndSwing
};
}

/** When a body falls asleep. */
UENUM(BlueprintType)
enum class ESleepFamily : uint8
{
	Normal,
	Sensitive,
	Custom
};

/** Which way a body is locked. */
UENUM(BlueprintType)
namespace EDOFMode
{
enum Type : int
{
	Default,
	SixDOF,
	YZPlane,
	XZPlane,
	XYPlane,
	CustomPlane,
	None
};
}

/** Which bits of the stencil are written. */
UENUM(BlueprintType)
enum class ERendererStencilMask : uint8
{
	ERSM_Default,
	ERSM_255,
	ERSM_1,
	ERSM_2,
	ERSM_4,
	ERSM_8,
	ERSM_16,
	ERSM_32,
	ERSM_64,
	ERSM_128
};

/** What a mesh does while nobody sees it. */
UENUM(BlueprintType)
namespace EMeshComponentUpdateFlag
{
enum Type : int
{
	OnlyTickPoseWhenRendered,
	OnlyTickMontagesWhenNotRendered,
	TickPose,
	RefreshBones
};
}
