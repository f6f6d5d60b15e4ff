#include "Tools/ToolFixture.h"

#include "EdGraph/EdGraph.h"
#include "EdGraph/EdGraphPin.h"
#include "EdGraphNode_Comment.h"
#include "Editor.h"
#include "EditorAssetLibrary.h"
#include "Engine/Blueprint.h"
#include "Engine/Level.h"
#include "Engine/World.h"
#include "GameFramework/Actor.h"
#include "HAL/PlatformTime.h"
#include "IImageWrapperModule.h"
#include "ImageUtils.h"
#include "K2Node_IfThenElse.h"
#include "Kismet2/KismetEditorUtilities.h"
#include "Math/Color.h"
#include "Misc/Base64.h"
#include "Modules/ModuleManager.h"
#include "Subsystems/AssetEditorSubsystem.h"
#include "UObject/Package.h"

#include <gmock/gmock.h>
#include <limits>

namespace
{
using testing::HasSubstr;

/** A picture as a tool gave it. */
struct FPicture
{
	std::string Title;
	int32 Width = 0;
	int32 Height = 0;
	TArray64<uint8> Pixels;

	FColor At(int32 X, int32 Y) const
	{
		const uint8* const Pixel = Pixels.GetData() + (int64(Y) * Width + X) * 4;
		return FColor(Pixel[2], Pixel[1], Pixel[0]);
	}
	/** How many pixels are near a colour. */
	int32 Count(const FColor& Color, int32 Tolerance = 6) const
	{
		const auto IsNear = [Tolerance](uint8 A, uint8 B)
		{ return FMath::Abs(int32(A) - int32(B)) <= Tolerance; };
		int32 Num = 0;
		for (int32 Y = 0; Y < Height; ++Y)
		{
			for (int32 X = 0; X < Width; ++X)
			{
				const FColor Pixel = At(X, Y);
				Num += IsNear(Pixel.R, Color.R) && IsNear(Pixel.G, Color.G) && IsNear(Pixel.B, Color.B) ? 1 : 0;
			}
		}
		return Num;
	}
};

constexpr FColor ExecColor(0xFF, 0xFF, 0xFF);
constexpr FColor EventColor(0x9E, 0x14, 0x14);
constexpr FColor ErrorColor(0xC8, 0x1E, 0x1E);

class Screenshot : public FToolTest
{
protected:
	virtual void SetUp() override
	{
		FToolTest::SetUp();
		GetAssetEditors().CloseAllAssetEditors();
	}
	virtual void TearDown() override
	{
		GetAssetEditors().CloseAllAssetEditors();
		FToolTest::TearDown();
	}

	static UAssetEditorSubsystem& GetAssetEditors() { return *GEditor->GetEditorSubsystem<UAssetEditorSubsystem>(); }

	static FPicture Take(const std::string& Input)
	{
		const TSharedRef<FJsonObject> Result = Answer("get_scene_screenshot", Input);
		FPicture Picture;
		Picture.Title = GetText(Result, "title");
		TArray<uint8> Png;
		EXPECT_TRUE(FBase64::Decode(Result->GetStringField(TEXT("image")), Png));
		const TSharedPtr<IImageWrapper> Reader =
			FModuleManager::LoadModuleChecked<IImageWrapperModule>(TEXT("ImageWrapper")).CreateImageWrapper(EImageFormat::PNG);
		EXPECT_TRUE(Reader->SetCompressed(Png.GetData(), Png.Num()));
		EXPECT_TRUE(Reader->GetRaw(ERGBFormat::BGRA, 8, Picture.Pixels));
		Picture.Width = GetNumber(Result, "width");
		Picture.Height = GetNumber(Result, "height");
		EXPECT_EQ(Reader->GetWidth(), Picture.Width);
		EXPECT_EQ(Reader->GetHeight(), Picture.Height);
		EXPECT_LE(FMath::Max(Picture.Width, Picture.Height), 2048);
		return Picture;
	}

	/** An empty Blueprint that is no file's. */
	static UEdGraph& MakeGraph(const TCHAR* Name)
	{
		UBlueprint* const Blueprint =
			FKismetEditorUtilities::CreateBlueprint(AActor::StaticClass(), CreatePackage(*(FString(TEXT("/Game/")) + Name)), Name, BPTYPE_Normal);
		UEdGraph& Graph = *Blueprint->UbergraphPages[0];
		for (UEdGraphNode* const Node : TArray<TObjectPtr<UEdGraphNode>>(Graph.Nodes))
		{
			Graph.RemoveNode(Node);
		}
		return Graph;
	}

	template <typename NodeType>
	static NodeType& AddNode(UEdGraph& Graph, int32 X, int32 Y)
	{
		NodeType* const Node = NewObject<NodeType>(&Graph);
		Graph.AddNode(Node);
		Node->CreateNewGuid();
		Node->AllocateDefaultPins();
		Node->NodePosX = X;
		Node->NodePosY = Y;
		return *Node;
	}
};
}

TEST_F(Screenshot, ShowsAGraphWithItsEventsAndWires)
{
	const FPicture Picture = Take(R"({"mode":"editor","blueprint":"/Game/BP_Door"})");
	EXPECT_EQ(Picture.Title, "BP_Door - EventGraph");
	EXPECT_GT(Picture.Width, 640);
	EXPECT_GT(Picture.Count(EventColor, 10), 200) << "the titles of events are red";
	EXPECT_GT(Picture.Count(ExecColor), 2000) << "execution wires are white";
	EXPECT_EQ(Take(R"({"mode":"editor"})").Title, "BP_Door - EventGraph") << "it is open now";
	EXPECT_EQ(Take(R"({"mode":"editor","blueprint":"/Game/BP_Player","graph":"AddScore"})").Title, "BP_Player - AddScore");
	GetAssetEditors().CloseAllEditorsForAsset(UEditorAssetLibrary::LoadAsset(TEXT("/Game/BP_Player")));
	EXPECT_EQ(Take(R"({"mode":"editor"})").Title, "BP_Door - EventGraph") << "what was open before shows again";
}

TEST_F(Screenshot, AWireThatIsBrokenIsGone)
{
	UEdGraph& Graph = MakeGraph(TEXT("BP_Wires"));
	UEdGraphNode& Left = AddNode<UK2Node_IfThenElse>(Graph, 0, 0);
	UEdGraphNode& Right = AddNode<UK2Node_IfThenElse>(Graph, 600, 0);
	const std::string Input = R"({"mode":"editor","blueprint":"/Game/BP_Wires"})";
	const int32 Without = Take(Input).Count(ExecColor);
	Left.FindPin(TEXT("then"))->MakeLinkTo(Right.FindPin(TEXT("execute")));
	const FPicture With = Take(Input);
	EXPECT_GT(With.Count(ExecColor), Without + 400) << "a wire of some hundred pixels";
	Left.FindPin(TEXT("then"))->BreakAllPinLinks();
	EXPECT_EQ(Take(Input).Count(ExecColor), Without);
}

TEST_F(Screenshot, ShowsCommentsDisabledNodesAndErrors)
{
	UEdGraph& Graph = MakeGraph(TEXT("BP_Marks"));
	UEdGraphNode& Node = AddNode<UK2Node_IfThenElse>(Graph, 100, 100);
	const std::string Input = R"({"mode":"editor","blueprint":"/Game/BP_Marks"})";
	const FPicture Plain = Take(Input);
	EXPECT_EQ(Plain.Count(ErrorColor), 0);
	Node.bHasCompilerMessage = true;
	Node.ErrorType = 1;
	EXPECT_GT(Take(Input).Count(ErrorColor), 300);
	Node.bHasCompilerMessage = false;
	Node.DisableNode();
	EXPECT_LT(Take(Input).Count(ExecColor), Plain.Count(ExecColor)) << "it is greyed";

	UEdGraphNode_Comment& Comment = AddNode<UEdGraphNode_Comment>(Graph, 0, 0);
	Comment.NodeWidth = 600;
	Comment.NodeHeight = 400;
	Comment.CommentColor = FLinearColor::Green;
	const FPicture Commented = Take(Input);
	EXPECT_GT(Commented.At(Commented.Width / 2, Commented.Height - 80).G, Commented.At(Commented.Width / 2, Commented.Height - 80).R + 20);
}

TEST_F(Screenshot, ALevelShowsItsActorsWhereTheyStand)
{
	UWorld* const World = UWorld::CreateWorld(EWorldType::Editor, false, TEXT("L_Drawn"), CreatePackage(TEXT("/Game/L_Drawn")));
	UWorld* const Before = GEditor->GetEditorWorldContext().World();
	GEditor->GetEditorWorldContext().SetCurrentWorld(World);
	const UBlueprint* const Door = Cast<UBlueprint>(UEditorAssetLibrary::LoadAsset(TEXT("/Game/BP_Door")));
	ASSERT_NE(Door, nullptr);
	const std::string Input = R"({"mode":"viewport"})";
	const FColor DoorColor(0x4D, 0xA3, 0xFF);
	const FPicture Empty = Take(Input);
	EXPECT_EQ(Empty.Title, "/Game/L_Drawn.L_Drawn");
	EXPECT_EQ(Empty.Count(DoorColor), 0);
	World->SpawnActor<AActor>(Door->GeneratedClass.Get(), FTransform(FVector(0, 0, 0)));
	const FPicture One = Take(Input);
	World->SpawnActor<AActor>(Door->GeneratedClass.Get(), FTransform(FVector(500, 800, 0)));
	const FPicture Two = Take(Input);
	EXPECT_GT(One.Count(DoorColor), 80);
	const double NotANumber = std::numeric_limits<double>::quiet_NaN();
	World->SpawnActor<AActor>(Door->GeneratedClass.Get(), FTransform(FVector(NotANumber, 0, 0)));
	EXPECT_EQ(Take(Input).Count(DoorColor), Two.Count(DoorColor)) << "an actor that stands nowhere spoils nothing";
	EXPECT_LT(Two.Count(DoorColor), One.Count(DoorColor)) << "the picture shows a larger part of the world, so the doors are smaller";
	// The second stands further north, which is up, and further east, which is right.
	int64 LeftBottom = 0;
	int64 RightTop = 0;
	for (int32 Y = 0; Y < Two.Height; ++Y)
	{
		for (int32 X = 0; X < Two.Width; ++X)
		{
			const bool bDoor = Two.At(X, Y) == DoorColor;
			LeftBottom += bDoor && X < Two.Width / 2 && Y > Two.Height / 2 ? 1 : 0;
			RightTop += bDoor && X > Two.Width / 2 && Y < Two.Height / 2 ? 1 : 0;
		}
	}
	EXPECT_GT(LeftBottom, 40);
	EXPECT_GT(RightTop, 40);
	EXPECT_EQ(Take(R"({"mode":"editor"})").Title, "L_Drawn") << "with nothing open, the window shows the level";
	GEditor->GetEditorWorldContext().SetCurrentWorld(Before);
}

TEST_F(Screenshot, HostilePlacesAndTextsEndInAPicture)
{
	UEdGraph& Graph = MakeGraph(TEXT("BP_Hostile"));
	AddNode<UK2Node_IfThenElse>(Graph, MIN_int32, MAX_int32);
	UEdGraphNode& Far = AddNode<UK2Node_IfThenElse>(Graph, MAX_int32, MIN_int32);
	UEdGraphNode_Comment& Comment = AddNode<UEdGraphNode_Comment>(Graph, 0, 0);
	Comment.NodeWidth = MAX_int32;
	Comment.NodeHeight = MIN_int32;
	Comment.NodeComment = FString::ChrN(200'000, TEXT('x')) + TEXT("\n") + FString::ChrN(5, 0xD800);
	Far.NodeComment = Comment.NodeComment;
	Far.bCommentBubbleVisible = true;
	Far.FindPin(TEXT("Condition"))->PinFriendlyName = FText::FromString(FString::ChrN(200'000, TEXT('y')));
	const FPicture Picture = Take(R"({"mode":"editor","blueprint":"/Game/BP_Hostile"})");
	EXPECT_EQ(Picture.Title, "BP_Hostile - EventGraph");
	UEdGraph& Empty = MakeGraph(TEXT("BP_Bare"));
	EXPECT_EQ(Empty.Nodes.Num(), 0);
	EXPECT_EQ(Take(R"({"mode":"editor","blueprint":"/Game/BP_Bare"})").Width, 640);
}

TEST_F(Screenshot, TenThousandNodesFitIntoOnePictureAndOneCanBeSeenFromNear)
{
	UEdGraph& Graph = MakeGraph(TEXT("BP_Huge"));
	UEdGraphNode* Last = nullptr;
	for (int32 Index = 0; Index < 10'000; ++Index)
	{
		UEdGraphNode& Node = AddNode<UK2Node_IfThenElse>(Graph, (Index % 100) * 300, (Index / 100) * 200);
		if (Last)
		{
			Last->FindPin(TEXT("then"))->MakeLinkTo(Node.FindPin(TEXT("execute")));
		}
		Last = &Node;
	}
	const double Start = FPlatformTime::Seconds();
	const FPicture All = Take(R"({"mode":"editor","blueprint":"/Game/BP_Huge"})");
	EXPECT_GT(FMath::Max(All.Width, All.Height), 1500);
	const FPicture Near = Take(R"({"mode":"editor","blueprint":"/Game/BP_Huge","node":"Branch_0"})");
	EXPECT_LT(Near.Width, 1400);
	EXPECT_GT(Near.Count(ExecColor), 500) << "legible titles and wide wires";
	EXPECT_LT(FPlatformTime::Seconds() - Start, 20.0);
}

TEST_F(Screenshot, RefusesArgumentsThatDoNotFit)
{
	const std::pair<const char*, const char*> Cases[] = {
		{R"({})", "Invalid input: Missing `mode`"},
		{R"({"mode":1})", "Invalid input: `mode` must be a string, not 1"},
		{R"({"mode":"window"})", "Invalid input: Invalid mode 'window'; must be 'editor' or 'viewport'"},
		{R"({"mode":"Editor"})", "Invalid input: Invalid mode 'Editor'; must be 'editor' or 'viewport'"},
		{R"({"mode":""})", "Invalid input: Invalid mode ''; must be 'editor' or 'viewport'"},
		{R"({"mode":"editor","blueprint":"/Game/BP_Nowhere"})", "Invalid input: Blueprint not found: /Game/BP_Nowhere"},
		{R"({"mode":"editor","blueprint":"/Game/BP_Door","graph":"Nowhere"})", "Invalid input: Graph not found: Nowhere"},
		{R"({"mode":"editor","blueprint":"/Game/BP_Door","node":"Nobody_0"})", "Invalid input: Node not found: Nobody_0"},
		{R"({"mode":"editor","graph":"OpenDoor"})", "Invalid input: `graph` needs a `blueprint`"},
		{R"({"mode":"editor","node":"Branch_0"})", "Invalid input: `node` needs a `blueprint`"},
		{R"({"mode":"viewport","blueprint":"/Game/BP_Door"})",
			"Invalid input: `blueprint` goes with the mode 'editor'; the viewport shows the level"},
	};
	for (const auto& [Input, Expected] : Cases)
	{
		EXPECT_EQ(Error("get_scene_screenshot", Input), Expected);
	}
}

TEST(ImageUtils, AResizedPictureHasTheMeansOfTheOldOne)
{
	const FColor Black(0, 0, 0, 7);
	const FColor White(255, 255, 255, 7);
	TArray<FColor> Small;
	FImageUtils::ImageResize(4, 2, {Black, White, White, White, Black, White, White, White}, 2, 1, Small, false);
	EXPECT_EQ(Small, TArray<FColor>({FColor(128, 128, 128, 255), FColor(255, 255, 255, 255)}));
	FImageUtils::ImageResize(2, 1, {Black, White}, 4, 2, Small, true, false);
	EXPECT_EQ(Small.Num(), 8);
	EXPECT_EQ(Small[0], Black);
	EXPECT_EQ(Small[7], White);
}
