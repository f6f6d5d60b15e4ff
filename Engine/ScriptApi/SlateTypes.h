// Package: /Script/SlateCore
#pragma once

#include "CoreMinimal.h"
#include "SlateTypes.generated.h"

/** Where focus goes. */
UENUM(BlueprintType)
enum class EUINavigation : uint8
{
	Left,
	Right,
	Up,
	Down,
	Next,
	Previous
};

/** What a key does in menus. */
UENUM(BlueprintType)
enum class EUINavigationAction : uint8
{
	Accept,
	Back,
	Num,
	Invalid
};

/** What happens at the edge of a menu. */
UENUM(BlueprintType)
enum class EUINavigationRule : uint8
{
	Escape,
	Explicit,
	Wrap,
	Stop,
	Custom,
	CustomBoundary,
	Invalid
};

/** How a brush draws. */
UENUM(BlueprintType)
namespace ESlateBrushDrawType
{
enum Type : int
{
	NoDrawType UMETA(DisplayName = "None"),
	Box,
	Border,
	Image,
	RoundedBox UMETA(DisplayName = "Rounded Box")
};
}

/** How a brush repeats. */
UENUM(BlueprintType)
namespace ESlateBrushTileType
{
enum Type : int
{
	NoTile UMETA(DisplayName = "No Tile"),
	Horizontal,
	Vertical,
	Both
};
}

/** How a brush is mirrored. */
UENUM(BlueprintType)
namespace ESlateBrushMirrorType
{
enum Type : int
{
	NoMirror UMETA(DisplayName = "None"),
	Horizontal,
	Vertical,
	Both
};
}

/** What a brush's picture is. */
UENUM(BlueprintType)
namespace ESlateBrushImageType
{
enum Type : int
{
	NoImage,
	FullColor,
	Linear,
	Vector
};
}

/** How corners are rounded. */
UENUM(BlueprintType)
namespace ESlateBrushRoundingType
{
enum Type : int
{
	FixedRadius UMETA(DisplayName = "Fixed Radius"),
	HalfHeightRadius UMETA(DisplayName = "Half Height Radius")
};
}

/** Where a colour comes from. */
UENUM(BlueprintType)
namespace ESlateColorStylingMode
{
enum Type : int
{
	UseColor_Specified,
	UseColor_ColorTable,
	UseColor_Foreground,
	UseColor_Foreground_Subdued,
	UseColor_UseStyle
};
}

/** Place from left to right. */
UENUM(BlueprintType)
enum EHorizontalAlignment : int
{
	HAlign_Fill UMETA(DisplayName = "Fill"),
	HAlign_Left UMETA(DisplayName = "Left"),
	HAlign_Center UMETA(DisplayName = "Center"),
	HAlign_Right UMETA(DisplayName = "Right")
};

/** Place from top to bottom. */
UENUM(BlueprintType)
enum EVerticalAlignment : int
{
	VAlign_Fill UMETA(DisplayName = "Fill"),
	VAlign_Top UMETA(DisplayName = "Top"),
	VAlign_Center UMETA(DisplayName = "Center"),
	VAlign_Bottom UMETA(DisplayName = "Bottom")
};

/** Along or down. */
UENUM(BlueprintType)
enum EOrientation : int
{
	Orient_Horizontal UMETA(DisplayName = "Horizontal"),
	Orient_Vertical UMETA(DisplayName = "Vertical")
};

/** How something was selected. */
UENUM(BlueprintType)
namespace ESelectInfo
{
enum Type : int
{
	OnKeyPress,
	OnNavigation,
	OnMouseClick,
	Direct
};
}

/** Why a text was taken over. */
UENUM(BlueprintType)
namespace ETextCommit
{
enum Type : int
{
	Default,
	OnEnter,
	OnUserMovedFocus,
	OnCleared
};
}

/** What of a widget is cut off. */
UENUM(BlueprintType)
enum class EWidgetClipping : uint8
{
	Inherit,
	ClipToBounds,
	ClipToBoundsWithoutIntersecting,
	ClipToBoundsAlways,
	OnDemand
};

/** Which way a widget's contents run. */
UENUM(BlueprintType)
enum class EFlowDirectionPreference : uint8
{
	Inherit,
	Culture,
	LeftToRight,
	RightToLeft
};

/** Where a menu opens. */
UENUM(BlueprintType)
enum EMenuPlacement : int
{
	MenuPlacement_BelowAnchor,
	MenuPlacement_CenteredBelowAnchor,
	MenuPlacement_BelowRightAnchor,
	MenuPlacement_ComboBox,
	MenuPlacement_ComboBoxRight,
	MenuPlacement_MenuRight,
	MenuPlacement_AboveAnchor,
	MenuPlacement_CenteredAboveAnchor,
	MenuPlacement_AboveRightAnchor,
	MenuPlacement_MenuLeft,
	MenuPlacement_Center,
	MenuPlacement_RightLeftCenter,
	MenuPlacement_MatchBottomLeft
};

/** When the mouse wheel is taken. */
UENUM(BlueprintType)
enum class EConsumeMouseWheel : uint8
{
	WhenScrollingPossible,
	Always,
	Never
};

/** What is read out of a widget. */
UENUM(BlueprintType)
enum class ESlateAccessibleBehavior : uint8
{
	NotAccessible,
	Auto,
	Summary,
	Custom,
	ToolTip
};

/** How letters are fitted to points. */
UENUM(BlueprintType)
enum class EFontHinting : uint8
{
	Default,
	Auto,
	AutoLight,
	Monochrome,
	None
};

/** How letter case is changed. */
UENUM(BlueprintType)
enum class ETextTransformPolicy : uint8
{
	None,
	ToLower,
	ToUpper
};

/** What is done with text that does not fit. */
UENUM(BlueprintType)
enum class ETextOverflowPolicy : uint8
{
	Clip,
	Ellipsis,
	MultilineEllipsis
};

/** Whether a widget stands on whole points. */
UENUM(BlueprintType)
enum class EWidgetPixelSnapping : uint8
{
	Inherit,
	Disabled,
	SnapToPixel
};

/** How colours are seen. */
UENUM(BlueprintType)
enum class EColorVisionDeficiency : uint8
{
	NormalVision,
	Deuteranope,
	Protanope,
	Tritanope
};

/** A gesture on a touch pad. */
UENUM(BlueprintType)
enum class ESlateGesture : uint8
{
	None,
	Scroll,
	Magnify,
	Swipe,
	Rotate,
	LongPress
};

/** Place and size of a widget on the screen. */
USTRUCT(BlueprintType)
struct FGeometry
{
	GENERATED_BODY()
};

/** Something that the user did. */
USTRUCT(BlueprintType)
struct FInputEvent
{
	GENERATED_BODY()
};

/** A key was pressed or released. */
USTRUCT(BlueprintType)
struct FKeyEvent : public FInputEvent
{
	GENERATED_BODY()
};

/** An axis was moved. */
USTRUCT(BlueprintType)
struct FAnalogInputEvent : public FKeyEvent
{
	GENERATED_BODY()
};

/** A pointer moved or a button of it was used. */
USTRUCT(BlueprintType)
struct FPointerEvent : public FInputEvent
{
	GENERATED_BODY()
};

/** A character was typed. */
USTRUCT(BlueprintType)
struct FCharacterEvent : public FInputEvent
{
	GENERATED_BODY()
};

/** A device was tilted or turned. */
USTRUCT(BlueprintType)
struct FMotionEvent : public FInputEvent
{
	GENERATED_BODY()
};

/** Focus came or went. */
USTRUCT(BlueprintType)
struct FFocusEvent
{
	GENERATED_BODY()
};

/** Focus is to move. */
USTRUCT(BlueprintType)
struct FNavigationEvent : public FInputEvent
{
	GENERATED_BODY()
};

/** Distances at four sides. */
USTRUCT(BlueprintType)
struct FMargin
{
	GENERATED_BODY()

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Appearance")
	float Left = 0.f;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Appearance")
	float Top = 0.f;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Appearance")
	float Right = 0.f;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Appearance")
	float Bottom = 0.f;
};

/** A colour, or a name for one of a style. */
USTRUCT(BlueprintType)
struct FSlateColor
{
	GENERATED_BODY()

	UPROPERTY(EditAnywhere, BlueprintReadWrite)
	FLinearColor SpecifiedColor;

	UPROPERTY(EditAnywhere, BlueprintReadWrite)
	TEnumAsByte<ESlateColorStylingMode::Type> ColorUseRule;
};

/** Outline of a rounded brush. */
USTRUCT(BlueprintType)
struct FSlateBrushOutlineSettings
{
	GENERATED_BODY()

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Appearance")
	FVector4 CornerRadii;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Appearance")
	FSlateColor Color;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Appearance")
	float Width = 0.f;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Appearance")
	TEnumAsByte<ESlateBrushRoundingType::Type> RoundingType;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Appearance")
	bool bUseBrushTransparency = false;
};

/** How a rectangle is drawn. */
USTRUCT(BlueprintType)
struct FSlateBrush
{
	GENERATED_BODY()

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Brush")
	TEnumAsByte<ESlateBrushDrawType::Type> DrawAs;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Brush")
	TEnumAsByte<ESlateBrushTileType::Type> Tiling;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Brush")
	TEnumAsByte<ESlateBrushMirrorType::Type> Mirroring;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Brush")
	FVector2D ImageSize;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Brush")
	FMargin Margin;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Brush")
	FSlateColor TintColor;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Brush")
	FSlateBrushOutlineSettings OutlineSettings;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Brush")
	TObjectPtr<UObject> ResourceObject;
};

/** Outline of letters. */
USTRUCT(BlueprintType)
struct FFontOutlineSettings
{
	GENERATED_BODY()

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "OutlineSettings")
	int32 OutlineSize = 0;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "OutlineSettings")
	bool bSeparateFillAlpha = false;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "OutlineSettings")
	bool bApplyOutlineToDropShadows = false;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "OutlineSettings")
	TObjectPtr<UObject> OutlineMaterial;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "OutlineSettings")
	FLinearColor OutlineColor;
};

/** Letters and their size. */
USTRUCT(BlueprintType)
struct FSlateFontInfo
{
	GENERATED_BODY()

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "SlateStyleRules")
	TObjectPtr<UObject> FontObject;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "SlateStyleRules")
	TObjectPtr<UObject> FontMaterial;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "SlateStyleRules")
	FFontOutlineSettings OutlineSettings;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "SlateStyleRules")
	FName TypefaceFontName;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "SlateStyleRules")
	float Size = 24.f;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "SlateStyleRules")
	int32 LetterSpacing = 0;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "SlateStyleRules")
	float SkewAmount = 0.f;
};
