#pragma once

#include "Program.h"
#include "RawHttpClient.h"

#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <httplib.h>
#include <memory>
#include <nlohmann/json.hpp>
#include <regex>
#include <string>
#include <thread>
#include <vector>

/** A user of a real local service that wants a login, with a store of their own. */
class FLoginCommandTest : public testing::Test
{
protected:
	FLoginCommandTest()
		: Data(Project.GetPath() / "data")
		, OpenedFile(Project.GetPath() / "opened")
	{
		std::filesystem::create_directories(Project.GetPath() / "bin");
		// Renamed, so that the test never sees half of the address.
		const std::string File = OpenedFile.string();
		WriteProgram(Project.GetPath() / "bin/xdg-open",
			"#!/bin/sh\nprintf '%s' \"$1\" > \"" + File + ".new\"\nmv \"" + File + ".new\" \"" + File + "\"\n");
	}

	/** Settings are more than those of the login. */
	void StartService(const nlohmann::json& Login = nlohmann::json::object(), const nlohmann::json& Settings = nlohmann::json::object())
	{
		const std::filesystem::path Config = Project.GetPath() / "service.json";
		nlohmann::json All = {{"user", {{"name", "Ada Lovelace"}, {"email", "ada@example.org"}}}, {"login", Login}};
		All.update(Settings);
		std::ofstream(Config) << All;
		Service = std::make_unique<FStartedProgram>(
			std::vector<std::string>{VEXEL_SERVICE_PROGRAM, "--config", Config}, FProgramSurroundings{.TimeoutSeconds = 120});
		const nlohmann::json Ready = nlohmann::json::parse(Service->WaitForOutput("\n"), nullptr, false);
		Url = Ready.value("url", "");
		ASSERT_NE(Url, "");
	}

	/** With a desktop, whose browser is the test; without one, it is as over ssh. */
	FProgramSurroundings MakeSurroundings(bool bDesktop) const
	{
		return {.Environment = {"XDG_DATA_HOME=" + Data.string(), "VEXEL_SECRET_STORE=file",
					"VEXEL_AUTH_CALLBACK_PORT=" + std::to_string(CallbackPort),
					bDesktop ? "DISPLAY=:99" : "DISPLAY=", "WAYLAND_DISPLAY=", "SSH_CONNECTION=",
					"PATH=" + (Project.GetPath() / "bin").string() + ":/usr/bin:/bin"}};
	}

	std::unique_ptr<FStartedProgram> Start(const std::string& Command, bool bDesktop, std::vector<std::string> More = {}) const
	{
		std::vector<std::string> Words = {VEXEL_PROGRAM, Command, "--service", Url};
		Words.insert(Words.end(), More.begin(), More.end());
		return std::make_unique<FStartedProgram>(Words, MakeSurroundings(bDesktop));
	}
	FProgramResult Run(const std::string& Command, std::vector<std::string> More = {}) const
	{
		return Start(Command, false, std::move(More))->Finish();
	}

	/** The address that the program opened in the desktop's browser: the word that stood on the command line. */
	std::string WaitForOpened() const
	{
		const auto Deadline = std::chrono::steady_clock::now() + std::chrono::seconds(30);
		while (!std::filesystem::exists(OpenedFile) && std::chrono::steady_clock::now() < Deadline)
		{
			std::this_thread::sleep_for(std::chrono::milliseconds(10));
		}
		std::ifstream Stream(OpenedFile);
		return std::string(std::istreambuf_iterator<char>(Stream), {});
	}

	/** Where the page that the program opened leads, as a browser would find; empty when it leads nowhere any more. */
	static std::string FollowStart(const std::string& Start)
	{
		const size_t PortBegin = Start.rfind(':') + 1;
		const size_t PathBegin = std::min(Start.find('/', PortBegin), Start.size());
		// Not by httplib, which decodes the address in the answer.
		const FRawClient Visitor(std::atoi(Start.c_str() + PortBegin));
		const std::string Answer =
			Visitor.Ask("GET " + Start.substr(PathBegin) + " HTTP/1.1\r\nHost: 127.0.0.1\r\nConnection: close\r\n\r\n");
		std::smatch Location;
		return std::regex_search(Answer, Location, std::regex("\r\nLocation: ([^\r]*)\r\n")) ? Location[1].str() : std::string();
	}

	/** The address that the program prints. */
	static std::string ReadAddress(FStartedProgram& Program)
	{
		const std::string Output = Program.WaitForOutput("Ctrl-C cancels.");
		std::smatch Found;
		return std::regex_search(Output, Found, std::regex("\n  (http\\S+)\n")) ? Found[1].str() : std::string();
	}

	/** Opens the page and presses the button, as the simplest browser would; answers where that leads. */
	std::string DecideAt(const std::string& Address, const std::string& Decision) const
	{
		httplib::Client Client(Url);
		const httplib::Result Page = Client.Get(Address.substr(Url.size()));
		const auto Find = [&](const std::string& Name)
		{
			std::smatch Found;
			return std::regex_search(Page->body, Found, std::regex("name=\"" + Name + "\" value=\"([^\"]*)\"")) ? Found[1].str() : std::string();
		};
		if (!Page)
		{
			return "no page";
		}
		const std::string Cookie = Page->get_header_value("Set-Cookie");
		const httplib::Result Answer = Client.Post("/oauth/decision", {{"Cookie", Cookie.substr(0, Cookie.find(';'))}},
			httplib::Params{{"auth_request_id", Find("auth_request_id")}, {"form_token", Find("form_token")}, {"decision", Decision}});
		return Answer ? Answer->get_header_value("Location") : "no answer";
	}

	static void WriteProgram(const std::filesystem::path& Path, const std::string& Text)
	{
		std::ofstream(Path) << Text;
		std::filesystem::permissions(Path, std::filesystem::perms::owner_all);
	}

	FSampleProjectCopy Project;
	const std::filesystem::path Data;
	const std::filesystem::path OpenedFile;
	std::unique_ptr<FStartedProgram> Service;
	std::string Url;
	int CallbackPort = 0;
};
