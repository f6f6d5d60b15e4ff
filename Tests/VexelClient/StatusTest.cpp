#include "Containers/StringConv.h"
#include "EditorFixture.h"
#include "ScriptedHttpServer.h"
#include "Subsystem/VexelStatusManager.h"
#include "VexelErrorKinds.h"
#include "VexelInternalConfig.h"

#include <gmock/gmock.h>

namespace
{
const bool bModuleWanted = (FEditorTest::WantModule(TEXT("VexelClient")), true);

class Status : public FEditorTest
{
protected:
	virtual void SetUp() override
	{
		FEditorTest::SetUp();
		ASSERT_TRUE(bModuleWanted);
		FVexelStatusInfo::StopMonitoring();
		// The check with which the module began may have failed already.
		Log.Clear();
		OldUrl = FVexelInternalConfig::Find(TEXT("StatusUrl"))->Get();
		FVexelInternalConfig::Find(TEXT("StatusUrl"))->SetOverride(Server.GetUrl());
		Handle = FVexelStatusInfo::OnStatusChanged().AddLambda([this](const FVexelStatusInfo& Info)
			{ Seen.push_back(Info); });
	}

	virtual void TearDown() override
	{
		FVexelStatusInfo::StopMonitoring();
		FVexelStatusInfo::OnStatusChanged().Remove(Handle);
		FVexelInternalConfig::Find(TEXT("StatusUrl"))->SetOverride(OldUrl);
	}

	void Answer(const std::string& Body)
	{
		Server.AnswerWith("/api/v2/status.json", [Body](const FScriptedRequest&)
			{ return FScriptedAnswer().Text(Body); });
	}

	TVexelExpected<void> Check()
	{
		const TVexelTaskResult<void> Result = FVexelStatusManager::Get().InternalRunStatusCheck();
		EXPECT_TRUE(PumpUntil([&]
			{ return Result.IsComplete(); }));
		return Result.Value();
	}

	bool WaitForChecks(size_t Num)
	{
		return PumpUntil([&]
			{ return Seen.size() >= Num; });
	}

	FString OldUrl;
	FScriptedHttpServer Server;
	FDelegateHandle Handle;
	std::vector<FVexelStatusInfo> Seen;
};
}

TEST_F(Status, ACheckThatEndsAfterMonitoringIsNoNews)
{
	for (const char* const Body : {R"({"status":{"indicator":"minor","description":"Slow"}})", "no status"})
	{
		FScriptedGate Gate;
		Server.AnswerWith("/api/v2/status.json", [&Gate, Body](const FScriptedRequest&)
			{ return FScriptedAnswer().WaitFor(Gate).Chunk(Body); });
		const size_t NumBefore = Server.GetRequests().size();
		const TVexelTaskResult<void> Result = FVexelStatusManager::Get().InternalRunStatusCheck();
		ASSERT_TRUE(Server.WaitForRequests(NumBefore + 1));
		FVexelStatusInfo::StopMonitoring();
		Gate.Open();
		ASSERT_TRUE(PumpUntil([&Result]
			{ return Result.IsComplete(); }));
		Pump();
		EXPECT_TRUE(Seen.empty()) << Body;
		EXPECT_FALSE(Log.Contains("Failed to check system status")) << Log.ToText();
	}
}

TEST_F(Status, EachIndicatorIsItsStatus)
{
	struct FCase
	{
		const char* Indicator;
		EVexelSystemStatus Status;
	};
	const FCase Cases[] = {
		{"none", EVexelSystemStatus::Operational},
		{"minor", EVexelSystemStatus::Degraded},
		{"major", EVexelSystemStatus::Degraded},
		{"critical", EVexelSystemStatus::Outage},
		{"maintenance", EVexelSystemStatus::Maintenance},
		{"unknown", EVexelSystemStatus::Unknown},
		{"on fire", EVexelSystemStatus::Unknown},
	};
	for (const FCase& Case : Cases)
	{
		Answer(std::string(R"({"page":{},"status":{"indicator":")") + Case.Indicator + R"(","description":"As it is"}})");
		ASSERT_TRUE(Check().HasValue());
		EXPECT_EQ(FVexelStatusInfo::GetCurrent().Status, Case.Status) << Case.Indicator;
		EXPECT_EQ(Seen.back().Description, FString(TEXT("As it is")));
	}
	EXPECT_FALSE(Server.GetRequests()[0].GetHeader("Authorization"));
}

TEST_F(Status, ADocumentWithoutADescriptionIsUnknownAndOneWithoutAStatusIsRefused)
{
	Answer(R"({"status":{"indicator":"none"}})");
	ASSERT_TRUE(Check().HasValue());
	EXPECT_EQ(FVexelStatusInfo::GetCurrent().Description, FString(TEXT("UNKNOWN")));
	for (const char* const Body : {"", "no json", "{}", R"({"status":"none"})", "[]"})
	{
		Answer(Body);
		const TVexelExpected<void> Checked = Check();
		ASSERT_TRUE(Checked.HasError()) << Body;
		EXPECT_TRUE(Checked.GetError().IsA<FVexelError_StatusCheckInvalidResponse>());
		EXPECT_TRUE(Log.Contains("while checking system status"));
	}
	EXPECT_EQ(FVexelStatusInfo::GetCurrent().Status, EVexelSystemStatus::Operational) << "what was known stays";
	EXPECT_EQ(Seen.size(), 1u);
}

TEST_F(Status, IsCheckedAtOnceAndThenEveryFiveMinutesHoweverOftenItIsStarted)
{
	Answer(R"({"status":{"indicator":"none","description":"d"}})");
	FVexelStatusInfo::StartMonitoring();
	FVexelStatusInfo::StartMonitoring();
	ASSERT_TRUE(WaitForChecks(1));
	AdvanceTime(299.0f);
	EXPECT_EQ(Server.GetRequests().size(), 1u);
	AdvanceTime(2.0f);
	ASSERT_TRUE(WaitForChecks(2));
	EXPECT_EQ(Server.GetRequests().size(), 2u);

	// A check that fails does not end them.
	Answer("broken");
	AdvanceTime(300.0f);
	ASSERT_TRUE(PumpUntil([&]
		{ return Log.Contains("while checking system status"); }));
	Answer(R"({"status":{"indicator":"critical","description":"d"}})");
	AdvanceTime(300.0f);
	ASSERT_TRUE(WaitForChecks(3));
	EXPECT_EQ(Seen.back().Status, EVexelSystemStatus::Outage);

	FVexelStatusInfo::StopMonitoring();
	AdvanceTime(900.0f);
	EXPECT_EQ(Server.GetRequests().size(), 4u);
}

TEST_F(Status, ItsTextFormComesBack)
{
	FVexelStatusInfo Info;
	ASSERT_TRUE(Info.FromJsonString(FVexelStatusInfo(EVexelSystemStatus::Degraded, TEXT("slow")).ToJsonString()));
	EXPECT_EQ(Info.Status, EVexelSystemStatus::Degraded);
	EXPECT_EQ(Info.Description, FString(TEXT("slow")));
}
