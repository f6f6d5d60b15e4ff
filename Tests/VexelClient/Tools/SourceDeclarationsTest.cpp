#include "Tools/VexelSourceDeclarations.h"

#include "Containers/StringConv.h"
#include "Containers/UnrealString.h"

#include <gmock/gmock.h>
#include <random>

namespace
{
using testing::ElementsAre;
using testing::IsEmpty;

/** "class Game::ADoor 3-9" with a '+' behind a definition, one a declaration. */
std::vector<std::string> Read(const std::string& Text)
{
	std::vector<std::string> Lines;
	const FString Source = UTF8_TO_TCHAR(Text.c_str());
	for (const FVexelSourceDeclaration& Declaration : ReadVexelSourceDeclarations(Source))
	{
		Lines.push_back(TCHAR_TO_UTF8(*FString::Printf(TEXT("%s %s %d-%d%s"), Declaration.Kind, *Declaration.Name, Declaration.FirstLine,
			Declaration.LastLine, Declaration.bDefinition ? TEXT("+") : TEXT(""))));
	}
	return Lines;
}
}

TEST(SourceDeclarations, AReflectedHeader)
{
	EXPECT_THAT(Read(R"(#pragma once

#include "Door.generated.h"

class UBoxComponent;
DECLARE_DYNAMIC_MULTICAST_DELEGATE_OneParam(FOnOpened, ADoor*, Door);

/** How a door stands. */
UENUM(BlueprintType)
enum class EDoorState : uint8
{
	Open UMETA(DisplayName = "Open { it"),
	Closed,
};

// Opens and closes.
// For players.
UCLASS(Blueprintable)
class GAME_API ADoor final : public AActor, public IUsable
{
	GENERATED_BODY()

public:
	ADoor();
	virtual ~ADoor() override = default;

	/** Opens it. */
	UFUNCTION(BlueprintCallable, Category = "Door")
	virtual bool Open(float Angle = 90.0f, const TMap<FName, int32>& Keys = {});

	int32 GetNum() const { return Values.Num(); }

private:
	UPROPERTY(EditAnywhere, meta = (ClampMin = 0))
	TObjectPtr<UBoxComponent> Box = nullptr;
	TArray<int32> Values{1, 2};
	TFunction<void(int32)> Callback;
	struct FInner
	{
		bool operator==(const FInner& Other) const { return true; }
	};
};
)"),
		ElementsAre("enum EDoorState 8-14+", "class ADoor 16-42+", "function ADoor::ADoor 24-24", "function ADoor::~ADoor 25-25",
			"function ADoor::Open 27-29", "function ADoor::GetNum 31-31+", "struct ADoor::FInner 38-41+",
			"function ADoor::FInner::operator== 40-40+"));
}

TEST(SourceDeclarations, ASourceFile)
{
	EXPECT_THAT(Read(R"cpp(#include "Door.h"

#define DOOR_MACRO(Name) \
	void Name() { \
	}

static const TCHAR* Text = TEXT("class AFake { void Hidden(); }"); // class AComment {
const char* Raw = R"(
}}} class ARaw {
)";

namespace Game::Doors
{
namespace
{
int32 Count(const FString& Text)
{
	if (Text.IsEmpty()) { return 0; }
	return 1;
}
}

ADoor::ADoor()
	: Super(TEXT("x"))
	, Size{1, 2}
	, Map(MakeMap<int32>({}))
{
	const auto Lambda = [this] { Open(); };
}

template <typename T, class U = int>
TArray<T> ADoor::Collect(U&& Value) const
{
	return {};
}

struct FPoint MakePoint() { return {}; }

template <>
struct THash<FPoint>
{
};
}

extern "C" void Exported();
extern "C"
{
void Plain(void);
}
using FAlias = void (*)(int);
int Global = Compute(3);
IMPLEMENT_MODULE(FGame, Game)
)cpp"),
		ElementsAre("function Game::Doors::Count 16-20+", "function Game::Doors::ADoor::ADoor 23-29+",
			"function Game::Doors::ADoor::Collect 31-35+", "function Game::Doors::MakePoint 37-37+", "struct Game::Doors::THash 39-42+",
			"function Exported 45-45", "function Plain 48-48"));
}

TEST(SourceDeclarations, TextThatIsBrokenOrNoCppEndsWithoutHarm)
{
	EXPECT_THAT(Read(""), IsEmpty());
	EXPECT_THAT(Read("}}}}"), IsEmpty());
	EXPECT_THAT(Read("class"), IsEmpty());
	EXPECT_THAT(Read("class {"), IsEmpty());
	EXPECT_THAT(Read("\"unclosed\nvoid Open();"), ElementsAre("function Open 1-2"));
	EXPECT_THAT(Read("/* unclosed\nvoid Open();"), IsEmpty());
	EXPECT_THAT(Read("R\"("), IsEmpty());
	EXPECT_THAT(Read("void Open() {\nif ("), ElementsAre("function Open 1-2+"));
	EXPECT_THAT(Read("#define A \\"), IsEmpty());
	EXPECT_THAT(Read("namespace A { class B {\nvoid C();"), ElementsAre("class A::B 1-1+", "function A::B::C 2-2"));
	const std::string Deep(200'000, '{');
	EXPECT_THAT(Read("namespace A " + Deep), IsEmpty());
	EXPECT_THAT(Read(std::string(100'000, '(') + "\nvoid Open();"), IsEmpty());
}

TEST(SourceDeclarations, AnyMixtureOfPiecesHasLinesInOrder)
{
	const char* const Pieces[] = {"class ", "struct A", "enum ", "{", "}", ";", "(", ")", "\n", "::", "operator", "<", ">", "~", ":", "\"",
		"'", "/*", "*/", "//", "\\", "#if", "template", "namespace ", "B", "=", ",", "R\"(", ")\"", "public"};
	std::mt19937 Random(20260202);
	for (int32 Round = 0; Round < 3000; ++Round)
	{
		std::string Text;
		for (int32 Piece = 0; Piece < 60; ++Piece)
		{
			Text += Pieces[Random() % std::size(Pieces)];
		}
		const int32 NumLines = 1 + int32(std::count(Text.begin(), Text.end(), '\n'));
		const FString Source = UTF8_TO_TCHAR(Text.c_str());
		for (const FVexelSourceDeclaration& Declaration : ReadVexelSourceDeclarations(Source))
		{
			EXPECT_FALSE(Declaration.Name.IsEmpty()) << Text;
			EXPECT_GE(Declaration.FirstLine, 1) << Text;
			EXPECT_LE(Declaration.FirstLine, Declaration.LastLine) << Text;
			EXPECT_LE(Declaration.LastLine, NumLines) << Text;
		}
	}
}
