#include "LevelEditor/LevelPainter.h"

#include "AssetRegistry/IAssetRegistry.h"
#include "Components/SceneComponent.h"
#include "Engine/Level.h"
#include "Engine/World.h"
#include "GameFramework/Actor.h"
#include "GameFramework/Info.h"
#include "Rendering/HeadlessCanvas.h"
#include "UObject/Class.h"
#include "UObject/UnrealType.h"

#include <cmath>

namespace
{
constexpr int32 PictureWidth = 1280;
constexpr int32 PictureHeight = 900;
constexpr double LegendHeight = 44.0;
/** Room around the level, as a part of its size and in centimetres at the least. */
constexpr double RoomPart = 0.18;
constexpr double MinRoom = 150.0;
/** A level may be written anywhere; further out is no place for an actor. */
constexpr double MaxPlace = 1e8;
constexpr double MaxExtent = 1e7;
constexpr double MinGridPixels = 60.0;
constexpr double LabelText = 12.0;
constexpr double ClassText = 10.0;
/** More actors than that get no names: they would hide one another. */
constexpr int32 MaxLabels = 400;
constexpr int32 MaxLabelLength = 40;

constexpr FColor GroundColor(0x2A, 0x2E, 0x33);
constexpr FColor GridColor(0x3A, 0x40, 0x47);
constexpr FColor GridMainColor(0x4C, 0x54, 0x5D);
constexpr FColor LabelColor(0xF0, 0xF0, 0xF0);
constexpr FColor ClassColor(0xA9, 0xB2, 0xBC);
constexpr FColor LegendColor(0x16, 0x18, 0x1B);
constexpr FColor NorthColor(0xD8, 0x4A, 0x4A);
constexpr FColor EastColor(0x5F, 0xB8, 0x4A);

/** Words of classes, and how their actors are marked. The first that the class's name has counts. */
struct FMarkRow
{
	const TCHAR* Word;
	FColor Color;
};

constexpr FMarkRow MarkRows[] = {
	{TEXT("Light"), FColor(0xFF, 0xD9, 0x5A)},
	{TEXT("PlayerStart"), FColor(0x6C, 0xE0, 0x8A)},
	{TEXT("Camera"), FColor(0xC2, 0x9A, 0xF5)},
	{TEXT("StaticMesh"), FColor(0x8F, 0xA3, 0xB8)},
	{TEXT("Volume"), FColor(0xF0, 0x9A, 0x5A)},
	{TEXT("Trigger"), FColor(0xF0, 0x9A, 0x5A)},
	{TEXT("Sound"), FColor(0x5A, 0xC8, 0xF0)},
};
constexpr FColor BlueprintColor(0x4D, 0xA3, 0xFF);
constexpr FColor OtherColor(0xC8, 0xC8, 0xC8);

FColor GetMarkColor(const UClass& Class)
{
	for (const FMarkRow& Row : MarkRows)
	{
		if (Class.GetName().Contains(Row.Word))
		{
			return Row.Color;
		}
	}
	return Class.HasAnyClassFlags(CLASS_Native) ? OtherColor : BlueprintColor;
}

/** Of the world's X, which goes up in the picture, and Y, which goes to the right. */
FVector2D ToPlane(const FVector& Point)
{
	return FVector2D(FMath::Clamp(Point.Y, -MaxPlace, MaxPlace), FMath::Clamp(-Point.X, -MaxPlace, MaxPlace));
}

/** A file may put an actor where there is no place. */
bool IsDrawn(const AActor& Actor)
{
	return Actor.GetRootComponent() && !Actor.IsA<AInfo>() && Actor.IsListedInSceneOutliner() && !Actor.GetActorLocation().ContainsNaN();
}

/** A property of a component's class, which may be known by its declaration alone; null when it has none of that name and type. */
template <typename PropertyType>
const PropertyType* FindProperty(const UObject& Object, const TCHAR* Name)
{
	return CastField<PropertyType>(Object.GetClass()->FindPropertyByName(Name));
}

double ReadRadius(const UObject& Component)
{
	for (const TCHAR* const Name : {TEXT("SphereRadius"), TEXT("CapsuleRadius")})
	{
		if (const FFloatProperty* const Radius = FindProperty<FFloatProperty>(Component, Name))
		{
			return Radius->GetPropertyValue_InContainer(&Component);
		}
	}
	return 0.0;
}

/** "100x100x20" */
FVector ParseSize(const FString& Text)
{
	TArray<FString> Sides;
	Text.ParseIntoArray(Sides, TEXT("x"));
	return Sides.Num() == 3 ? FVector(FCString::Atod(*Sides[0]), FCString::Atod(*Sides[1]), FCString::Atod(*Sides[2])) : FVector::ZeroVector;
}

/** What the mesh told the registry when it was saved; this host does not read meshes themselves. */
FVector ReadMeshSize(const UObject& Component)
{
	constexpr double BasicShapeSide = 100.0;
	const FObjectProperty* const Property = FindProperty<FObjectProperty>(Component, TEXT("StaticMesh"));
	const UObject* const Mesh = Property ? Property->GetObjectPropertyValue_InContainer(&Component) : nullptr;
	if (!Mesh)
	{
		return FVector::ZeroVector;
	}
	if (Mesh->GetPathName().StartsWith(TEXT("/Engine/BasicShapes/")))
	{
		return FVector(BasicShapeSide);
	}
	FString Size;
	IAssetRegistry::GetChecked().GetAssetByObjectPath(FSoftObjectPath(Mesh), true).GetTagValue(TEXT("ApproxSize"), Size);
	return ParseSize(Size);
}

FVector ReadHalfSize(const UObject& Component)
{
	const FStructProperty* const Extent = FindProperty<FStructProperty>(Component, TEXT("BoxExtent"));
	const bool bBox = Extent && Extent->Struct->GetName() == TEXT("Vector");
	return bBox ? *Extent->ContainerPtrToValuePtr<FVector>(&Component) : ReadMeshSize(Component) * 0.5;
}

FString CutLabel(const FString& Text)
{
	return Text.Len() > MaxLabelLength ? Text.Left(MaxLabelLength - 1) + TEXT("\u2026") : Text;
}

/** 1, 2 or 5 times a power of ten, the least that is as many pixels as a grid's lines must lie apart. */
double ChooseStep(double Scale)
{
	double Step = 1.0;
	for (int32 Turn = 0; Step * Scale < MinGridPixels && Turn < 64; ++Turn)
	{
		Step *= Turn % 3 == 1 ? 2.5 : 2.0;
	}
	return Step;
}

/** "5 m" */
FString FormatLength(double Centimetres)
{
	if (Centimetres < 100.0)
	{
		return FString::Printf(TEXT("%.0f cm"), Centimetres);
	}
	return Centimetres < 100000.0 ? FString::Printf(TEXT("%g m"), Centimetres / 100.0) : FString::Printf(TEXT("%g km"), Centimetres / 100000.0);
}
}

FLevelPainter::FLevelPainter(const UWorld& InWorld)
	: Name(InWorld.GetName())
{
	for (const ULevel* const Level : InWorld.GetLevels())
	{
		for (const AActor* const Actor : Level->Actors)
		{
			if (Actor && IsDrawn(*Actor))
			{
				Places.Add(MakePlace(*Actor));
			}
		}
	}
	for (const FPlace& Place : Places)
	{
		Bounds += Place.Location - FVector2D(Place.Radius, Place.Radius);
		Bounds += Place.Location + FVector2D(Place.Radius, Place.Radius);
		for (const FVector2D& Point : Place.Outline)
		{
			Bounds += Point;
		}
	}
	if (!Bounds.bIsValid)
	{
		Bounds = FBox2D(FVector2D(0.0, 0.0), FVector2D(0.0, 0.0));
	}
	Bounds = Bounds.ExpandBy(FMath::Max(MinRoom, RoomPart * FMath::Max(Bounds.GetSize().X, Bounds.GetSize().Y)));
	const FVector2D Room(PictureWidth, PictureHeight - LegendHeight);
	Scale = FMath::Min(Room.X / Bounds.GetSize().X, Room.Y / Bounds.GetSize().Y);
	Corner = (Room - Bounds.GetSize() * Scale) * 0.5;
}

FIntPoint FLevelPainter::GetSize() const
{
	return FIntPoint(PictureWidth, PictureHeight);
}

FLevelPainter::FPlace FLevelPainter::MakePlace(const AActor& Actor)
{
	FPlace Place;
	Place.Label = CutLabel(Actor.GetActorLabel(false).IsEmpty() ? Actor.GetName() : Actor.GetActorLabel(false));
	FString ClassName = Actor.GetClass()->GetName();
	ClassName.RemoveFromEnd(TEXT("_C"));
	Place.ClassName = CutLabel(ClassName);
	Place.Location = ToPlane(Actor.GetActorLocation());
	Place.Height = Actor.GetActorLocation().Z;
	const FVector2D Forward = ToPlane(Actor.GetActorForwardVector());
	Place.Forward = Forward.SizeSquared() > UE_KINDA_SMALL_NUMBER ? Forward.GetSafeNormal() : FVector2D(0.0, -1.0);
	Place.Color = GetMarkColor(*Actor.GetClass());
	AddExtent(Actor, Place);
	return Place;
}

void FLevelPainter::AddExtent(const AActor& Actor, FPlace& Place)
{
	for (const UActorComponent* const Component : Actor.GetComponents())
	{
		const USceneComponent* const Scene = Cast<USceneComponent>(Component);
		if (!Scene)
		{
			continue;
		}
		const FTransform& Transform = Scene->GetComponentTransform();
		if (Transform.ContainsNaN())
		{
			continue;
		}
		const double Radius = ReadRadius(*Scene) * FMath::Max(Transform.GetScale3D().X, Transform.GetScale3D().Y);
		if (Radius > Place.Radius && Radius < MaxExtent)
		{
			Place.Radius = Radius;
		}
		const FVector HalfSize = ReadHalfSize(*Scene);
		if (Place.Outline.IsEmpty() && HalfSize.X > 0.0 && HalfSize.Y > 0.0 && HalfSize.GetMax() < MaxExtent)
		{
			for (const FVector& Sign : {FVector(1, 1, 0), FVector(1, -1, 0), FVector(-1, -1, 0), FVector(-1, 1, 0)})
			{
				Place.Outline.Add(ToPlane(Transform.TransformPosition(HalfSize * Sign)));
			}
		}
	}
}

void FLevelPainter::Draw(FHeadlessCanvas& Canvas) const
{
	const double Step = ChooseStep(Scale);
	Canvas.SetView(FVector2D::ZeroVector, 1.0);
	Canvas.FillBox(FBox2D(FVector2D::ZeroVector, FVector2D(PictureWidth, PictureHeight)), GroundColor);
	DrawGrid(Canvas, Step);
	for (const FPlace& Place : Places)
	{
		DrawPlace(Canvas, Place);
	}
	DrawLabels(Canvas);
	DrawLegend(Canvas, Step);
}

void FLevelPainter::DrawGrid(FHeadlessCanvas& Canvas, double Step) const
{
	const double Right = PictureWidth;
	const double Bottom = PictureHeight - LegendHeight;
	const FVector2D Begin = Bounds.Min - Corner / Scale;
	const FVector2D End = Begin + FVector2D(Right, Bottom) / Scale;
	const FCanvasTextStyle Style = {.Size = 9.0, .Color = ClassColor};
	for (double X = std::ceil(Begin.X / Step) * Step; X <= End.X; X += Step)
	{
		const double Pixel = ToPixels(FVector2D(X, 0.0)).X;
		Canvas.DrawLine(FVector2D(Pixel, 0.0), FVector2D(Pixel, Bottom), FMath::Abs(X) < Step / 2.0 ? GridMainColor : GridColor, 1.0);
		Canvas.DrawText(FString::Printf(TEXT("Y %.0f"), X), FVector2D(Pixel + 3.0, Bottom - 14.0), Style);
	}
	for (double Y = std::ceil(Begin.Y / Step) * Step; Y <= End.Y; Y += Step)
	{
		const double Pixel = ToPixels(FVector2D(0.0, Y)).Y;
		Canvas.DrawLine(FVector2D(0.0, Pixel), FVector2D(Right, Pixel), FMath::Abs(Y) < Step / 2.0 ? GridMainColor : GridColor, 1.0);
		Canvas.DrawText(FString::Printf(TEXT("X %.0f"), FMath::IsNearlyZero(Y) ? 0.0 : -Y), FVector2D(3.0, Pixel + 2.0), Style);
	}
}

void FLevelPainter::DrawPlace(FHeadlessCanvas& Canvas, const FPlace& Place) const
{
	const FVector2D Center = ToPixels(Place.Location);
	const FColor Weak(Place.Color.R, Place.Color.G, Place.Color.B, 0x38);
	if (!Place.Outline.IsEmpty())
	{
		TArray<FVector2D> Corners;
		for (const FVector2D& Point : Place.Outline)
		{
			Corners.Add(ToPixels(Point));
		}
		Canvas.FillShape(Corners, Weak);
		Canvas.DrawShape(Corners, Place.Color, 1.5);
	}
	if (Place.Radius > 0.0)
	{
		Canvas.FillCircle(Center, Place.Radius * Scale, Weak);
		Canvas.DrawCircle(Center, Place.Radius * Scale, Place.Color, 1.5);
	}
	constexpr double Mark = 6.0;
	const FVector2D Side(-Place.Forward.Y, Place.Forward.X);
	const FVector2D Tip = Center + Place.Forward * (Mark * 2.6);
	const FVector2D Arrow[] = {Tip, Center + Place.Forward * Mark * 1.2 + Side * Mark * 0.7, Center + Place.Forward * Mark * 1.2 - Side * Mark * 0.7};
	Canvas.FillShape(Arrow, Place.Color);
	Canvas.FillCircle(Center, Mark, Place.Color);
	Canvas.DrawCircle(Center, Mark, FColor(0x10, 0x10, 0x10), 1.0);
}

void FLevelPainter::DrawLabels(FHeadlessCanvas& Canvas) const
{
	if (Places.Num() > MaxLabels)
	{
		return;
	}
	TArray<FBox2D> Taken;
	for (const FPlace& Place : Places)
	{
		const FString Second = FString::Printf(TEXT("%s   Z %.0f"), *Place.ClassName, Place.Height);
		const FCanvasTextStyle First = {.Size = LabelText, .bBold = true, .Color = LabelColor};
		const FCanvasTextStyle Small = {.Size = ClassText, .Color = ClassColor};
		const double Width = FMath::Max(FHeadlessCanvas::MeasureText(Place.Label, First).X, FHeadlessCanvas::MeasureText(Second, Small).X);
		FVector2D Upper = ToPixels(Place.Location) + FVector2D(12.0, 8.0);
		Upper.X = FMath::Min(Upper.X, PictureWidth - Width - 8.0);
		FBox2D Box(Upper, Upper + FVector2D(Width, LabelText + ClassText + 10.0));
		// Names of actors that stand together go below one another.
		while (Box.Max.Y < PictureHeight && Taken.ContainsByPredicate([&Box](const FBox2D& Other)
												{ return Other.Intersect(Box); }))
		{
			Box = Box.ShiftBy(FVector2D(0.0, 8.0));
		}
		Taken.Add(Box);
		Canvas.FillBox(Box.ExpandBy(3.0), FColor(0x10, 0x12, 0x14, 0x90), 4.0);
		Canvas.DrawText(Place.Label, Box.Min, First);
		Canvas.DrawText(Second, Box.Min + FVector2D(0.0, LabelText + 4.0), Small);
	}
}

void FLevelPainter::DrawLegend(FHeadlessCanvas& Canvas, double Step) const
{
	const double Top = PictureHeight - LegendHeight;
	const double Middle = Top + LegendHeight / 2.0;
	Canvas.FillBox(FBox2D(FVector2D(0.0, Top), FVector2D(PictureWidth, PictureHeight)), LegendColor);
	const FString Title = FString::Printf(TEXT("%s   top view, %d actors"), *Name, Places.Num());
	Canvas.DrawText(Title, FVector2D(16.0, Middle - 9.0), {.Size = 14.0, .bBold = true, .Color = LabelColor}, PictureWidth * 0.6);

	const double Length = Step * Scale;
	const FVector2D Left(PictureWidth - 190.0 - Length, Middle + 4.0);
	for (const FVector2D& End : {Left, Left + FVector2D(Length, 0.0)})
	{
		Canvas.DrawLine(End - FVector2D(0.0, 5.0), End + FVector2D(0.0, 5.0), LabelColor, 2.0);
	}
	Canvas.DrawLine(Left, Left + FVector2D(Length, 0.0), LabelColor, 2.0);
	Canvas.DrawText(FormatLength(Step), Left + FVector2D(4.0, -18.0), {.Size = 11.0, .Color = LabelColor});

	const FVector2D Axes(PictureWidth - 70.0, Middle + 12.0);
	Canvas.DrawLine(Axes, Axes - FVector2D(0.0, 26.0), NorthColor, 2.5);
	Canvas.DrawLine(Axes, Axes + FVector2D(26.0, 0.0), EastColor, 2.5);
	Canvas.DrawText(TEXT("X"), Axes + FVector2D(-14.0, -28.0), {.Size = 11.0, .bBold = true, .Color = NorthColor});
	Canvas.DrawText(TEXT("Y"), Axes + FVector2D(32.0, -7.0), {.Size = 11.0, .bBold = true, .Color = EastColor});
}
