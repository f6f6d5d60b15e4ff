#include "Server/ReportStore.h"
#include "ServiceFixture.h"

#include <gtest/gtest.h>

namespace VexelService
{

namespace
{

const std::string Id = "0123456789abcdef0123456789abcdef";

std::string MakeEnvelope(const std::string& EventId, const std::string& Message)
{
	const std::string Event = FJson{{"event_id", EventId}, {"message", Message}}.dump();
	return FJson{{"event_id", EventId}}.dump() + "\n" + FJson{{"type", "event"}, {"length", Event.size()}}.dump() + "\n" + Event + "\n";
}

class Report : public FServiceTest
{
protected:
	httplib::Result Post(const std::string& Envelope, const std::string& Auth = "Sentry sentry_version=7, sentry_key=local") const
	{
		return MakeClient().Post("/api/1/envelope/", {{"X-Sentry-Auth", Auth}}, Envelope, "application/x-sentry-envelope");
	}
};

}

TEST_F(Report, WhatArrivedCanBeRead)
{
	StartService();
	LogIn();
	const httplib::Result Taken = Post(MakeEnvelope(Id, "a line\nand \"another\""));
	ASSERT_TRUE(Taken);
	EXPECT_EQ(Taken->status, 200);
	EXPECT_EQ(FJson::parse(Taken->body)["id"], Id);
	const httplib::Result Listed = MakeClient().Get("/api/reports", Bearer());
	ASSERT_TRUE(Listed);
	const FJson Reports = FJson::parse(Listed->body)["reports"];
	ASSERT_EQ(Reports.size(), 1u);
	EXPECT_EQ(Reports[0]["message"], "a line\nand \"another\"");
	EXPECT_EQ(MakeClient().Get("/api/reports")->status, 401) << "reports are the user's own";
}

TEST_F(Report, BadEnvelopesAreRefusedAndLeaveNothing)
{
	StartService();
	LogIn();
	const std::string Header = "{\"event_id\":\"" + Id + "\"}\n";
	const std::string Bad[] = {
		"",
		"no JSON",
		Header,
		Header + "{\"type\":\"event\",\"length\":100}\n{}",
		Header + "{\"type\":\"event\",\"length\":-1}\n{}",
		Header + "{\"type\":\"event\",\"length\":2}\n{}trailing",
		Header + "{\"type\":\"event\",\"length\":2}\n{}\n",
		Header + "[]\n{}\n",
		Header + "{\"type\":\"attachment\",\"length\":2}\nhi\n",
		MakeEnvelope("../../etc/passwd", "x"),
		MakeEnvelope(std::string(32, 'Z'), "x"),
		Header + "{\"type\":\"event\"}\n" + std::string(100'000, '['),
	};
	for (const std::string& Envelope : Bad)
	{
		EXPECT_EQ(Post(Envelope)->status, 400) << Envelope.substr(0, 80);
	}
	EXPECT_EQ(Post(MakeEnvelope(Id, "x"), "")->status, 401);
	EXPECT_EQ(FJson::parse(MakeClient().Get("/api/reports", Bearer())->body)["reports"].size(), 0u);
}

TEST(ReportStore, KeepsTheNewestAndReadsItemsWithoutALength)
{
	FReportStore Store;
	const std::string Tail = Id.substr(8);
	for (std::size_t Index = 0; Index < FReportStore::MaxReports + 3; ++Index)
	{
		const std::string EventId = std::to_string(10'000'000 + Index) + Tail;
		const std::string Event = FJson{{"event_id", EventId}, {"number", Index}}.dump();
		const auto Taken = Store.Take("{\"event_id\":\"" + EventId + "\"}\n{\"type\":\"note\"}\nignored\n{\"type\":\"event\"}\n" + Event);
		ASSERT_TRUE(bool(Taken)) << Taken.Error().Detail;
	}
	const std::vector<FJson> Reports = Store.GetReports();
	ASSERT_EQ(Reports.size(), FReportStore::MaxReports);
	EXPECT_EQ(Reports.front()["number"], 3);
	EXPECT_EQ(Reports.back()["number"], FReportStore::MaxReports + 2);
}

}
