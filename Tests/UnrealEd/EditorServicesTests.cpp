#include "Editor.h"
#include "EditorFixture.h"
#include "Subsystems/AssetEditorSubsystem.h"
#include "Subsystems/SubsystemCollection.h"
#include "TimerManager.h"
#include "UObject/Package.h"
#include "UObject/UObjectGlobals.h"

namespace
{
class FEditorServicesTest : public FEditorTest
{
};

TEST_F(FEditorServicesTest, TimersOfTheEditorRunOnItsOwnClock)
{
	FTimerManager& Timers = *GEditor->GetTimerManager();
	TArray<FString> Calls;
	FTimerHandle Once;
	FTimerHandle Looping;
	Timers.SetTimer(
		Once, [&Calls]
		{ Calls.Add(TEXT("once")); },
		1.0f);
	Timers.SetTimer(
		Looping, [&Calls]
		{ Calls.Add(TEXT("loop")); },
		1.0f, true, 0.25f);
	AdvanceTime(0.5f);
	EXPECT_EQ(Calls, TArray<FString>{TEXT("loop")}) << "the first delay stands for the first period";
	AdvanceTime(1.0f);
	EXPECT_EQ(Calls, (TArray<FString>{TEXT("loop"), TEXT("once"), TEXT("loop")}));
	EXPECT_FALSE(Timers.TimerExists(Once));
	Timers.SetTimer(
		Looping, [&Calls]
		{ Calls.Add(TEXT("other")); },
		0.0f);
	EXPECT_FALSE(Timers.TimerExists(Looping)) << "a rate of nothing clears the timer";
	AdvanceTime(5.0f);
	EXPECT_EQ(Calls.Num(), 3);
	EXPECT_FLOAT_EQ(Timers.GetTimerRemaining(Looping), -1.0f);
}

TEST_F(FEditorServicesTest, ANewTimerTakesItsHandlesOldOnesPlace)
{
	FTimerManager& Timers = *GEditor->GetTimerManager();
	int32 Calls = 0;
	FTimerHandle Handle;
	Timers.SetTimer(
		Handle, [&Calls]
		{ Calls += 100; },
		0.5f);
	Timers.SetTimer(
		Handle, [&Calls]
		{ ++Calls; },
		1.0f);
	AdvanceTime(2.0f);
	EXPECT_EQ(Calls, 1);
}

TEST_F(FEditorServicesTest, ATimerOfACollectedObjectIsNotCalled)
{
	FTimerManager& Timers = *GEditor->GetTimerManager();
	int32 Calls = 0;
	UPackage* const Object =
		NewObject<UPackage>(nullptr, MakeUniqueObjectName(nullptr, UPackage::StaticClass(), TEXT("/Temp/Timed")), RF_Transient);
	FTimerHandle Handle;
	Timers.SetTimer(Handle, FTimerDelegate::CreateWeakLambda(Object, [&Calls]
								{ ++Calls; }),
		0.5f, true);
	AdvanceTime(0.75f);
	EXPECT_EQ(Calls, 1);
	const TWeakObjectPtr<UPackage> Weak(Object);
	CollectGarbage(RF_Standalone);
	ASSERT_FALSE(Weak.IsValid()) << "a timer keeps nothing alive";
	AdvanceTime(2.0f);
	EXPECT_EQ(Calls, 1);
}

TEST_F(FEditorServicesTest, EachOwnerHasSubsystemsOfItsOwnFromStartToEnd)
{
	UAssetEditorSubsystem* const OfEditor = GEditor->GetEditorSubsystem<UAssetEditorSubsystem>();
	ASSERT_NE(OfEditor, nullptr);
	EXPECT_EQ(GEditor->GetEditorSubsystemBase(UAssetEditorSubsystem::StaticClass()), OfEditor);
	EXPECT_EQ(OfEditor->GetOuter(), GEditor);

	FSubsystemCollection<UEditorSubsystem> Others;
	EXPECT_EQ(Others.GetSubsystem<UAssetEditorSubsystem>(UAssetEditorSubsystem::StaticClass()), nullptr);
	Others.Initialize(GetTransientPackageAsObject());
	UAssetEditorSubsystem* const Other = Others.GetSubsystem<UAssetEditorSubsystem>(UAssetEditorSubsystem::StaticClass());
	ASSERT_NE(Other, nullptr);
	EXPECT_NE(Other, OfEditor);
	const TWeakObjectPtr<UAssetEditorSubsystem> Weak(Other);
	CollectGarbage(RF_NoFlags);
	EXPECT_TRUE(Weak.IsValid()) << "the collection holds them";
	Others.Deinitialize();
	EXPECT_EQ(Others.GetSubsystem<UAssetEditorSubsystem>(UAssetEditorSubsystem::StaticClass()), nullptr);
	CollectGarbage(RF_NoFlags);
	EXPECT_FALSE(Weak.IsValid());
	EXPECT_EQ(GEditor->GetEditorSubsystem<UAssetEditorSubsystem>(), OfEditor);
}
}
