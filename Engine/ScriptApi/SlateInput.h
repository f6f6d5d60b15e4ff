// Package: /Script/Slate
#pragma once

#include "CoreMinimal.h"
#include "SlateInput.generated.h"

/** When a text of the screen's keyboard is taken over. */
UENUM(BlueprintType)
enum class EVirtualKeyboardDismissAction : uint8
{
	TextChangeOnDismiss,
	TextCommitOnAccept,
	TextCommitOnDismiss
};

/** When the screen's keyboard opens. */
UENUM(BlueprintType)
enum class EVirtualKeyboardTrigger : uint8
{
	OnFocusByPointer,
	OnAllFocusEvents
};

/** Keys of the screen's keyboard. */
UENUM(BlueprintType)
namespace EVirtualKeyboardType
{
enum Type : int
{
	Default,
	Number,
	Web,
	Email,
	Password,
	AlphaNumeric
};
}

/** What a click is. */
UENUM(BlueprintType)
namespace EButtonClickMethod
{
enum Type : int
{
	DownAndUp,
	MouseDown,
	MouseUp,
	PreciseClick
};
}

/** What a tap is. */
UENUM(BlueprintType)
namespace EButtonTouchMethod
{
enum Type : int
{
	DownAndUp,
	Down,
	PreciseTap
};
}

/** What a press of a key is. */
UENUM(BlueprintType)
namespace EButtonPressMethod
{
enum Type : int
{
	DownAndUp,
	ButtonPress,
	ButtonRelease
};
}

/** How much of a list can be selected. */
UENUM(BlueprintType)
namespace ESelectionMode
{
enum Type : int
{
	None,
	Single,
	SingleToggle,
	Multi
};
}

/** Where lines of text stand. */
UENUM(BlueprintType)
namespace ETextJustify
{
enum Type : int
{
	Left,
	Center,
	Right,
	InvariantLeft,
	InvariantRight
};
}

/** Where lines of text break. */
UENUM(BlueprintType)
enum class ETextWrappingPolicy : uint8
{
	DefaultWrapping,
	AllowPerCharacterWrapping
};

/** How contents are fitted to a place. */
UENUM(BlueprintType)
namespace EStretch
{
enum Type : int
{
	None,
	Fill,
	ScaleToFit,
	ScaleToFitX,
	ScaleToFitY,
	ScaleToFill,
	ScaleBySafeZone,
	UserSpecified,
	UserSpecifiedWithClipping
};
}

/** Whether contents grow or shrink. */
UENUM(BlueprintType)
namespace EStretchDirection
{
enum Type : int
{
	Both,
	DownOnly,
	UpOnly
};
}

/** Which way a bar fills. */
UENUM(BlueprintType)
namespace EProgressBarFillType
{
enum Type : int
{
	LeftToRight,
	RightToLeft,
	FillFromCenter,
	FillFromCenterHorizontal,
	FillFromCenterVertical,
	TopToBottom,
	BottomToTop
};
}

/** How a bar fills. */
UENUM(BlueprintType)
namespace EProgressBarFillStyle
{
enum Type : int
{
	Mask,
	Scale
};
}

/** Which way a list scrolls. */
UENUM(BlueprintType)
enum EScrollDirection : int
{
	Scroll_Down,
	Scroll_Up
};

/** Where a widget stands after scrolling to it. */
UENUM(BlueprintType)
enum class EDescendantScrollDestination : uint8
{
	IntoView,
	TopOrLeft,
	Center,
	BottomOrRight
};

/** Whether focus scrolls. */
UENUM(BlueprintType)
enum class EScrollWhenFocusChanges : uint8
{
	NoScroll,
	InstantScroll,
	AnimatedScroll
};

/** A key with its modifiers. */
USTRUCT(BlueprintType)
struct FInputChord
{
	GENERATED_BODY()

	UPROPERTY(EditAnywhere, BlueprintReadWrite)
	FKey Key;

	UPROPERTY(EditAnywhere, BlueprintReadWrite)
	uint8 bShift : 1;

	UPROPERTY(EditAnywhere, BlueprintReadWrite)
	uint8 bCtrl : 1;

	UPROPERTY(EditAnywhere, BlueprintReadWrite)
	uint8 bAlt : 1;

	UPROPERTY(EditAnywhere, BlueprintReadWrite)
	uint8 bCmd : 1;
};

/** Part of the parent that a widget keeps to, from 0 to 1. */
USTRUCT(BlueprintType)
struct FAnchors
{
	GENERATED_BODY()

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Appearance")
	FVector2D Minimum;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Appearance")
	FVector2D Maximum;
};

/** What the screen's keyboard offers. */
USTRUCT(BlueprintType)
struct FVirtualKeyboardOptions
{
	GENERATED_BODY()

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Keyboard")
	bool bEnableAutocorrect = true;
};
