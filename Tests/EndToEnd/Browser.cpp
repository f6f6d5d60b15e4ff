#include "Browser.h"

#include <chrono>
#include <cstdlib>
#include <fcntl.h>
#include <fstream>
#include <poll.h>
#include <thread>
#include <unistd.h>

namespace
{
constexpr std::chrono::seconds Patience(20);
constexpr int BrowserReads = 3;
constexpr int BrowserWrites = 4;
/** Above the numbers that the browser has its ends under, so that neither overwrites the other on the way. */
constexpr int FirstFreeDescriptor = 10;

/** A pipe whose ends are closed in every program that is not given them. */
void OpenPipe(int& ReadEnd, int& WriteEnd)
{
	int Ends[2] = {-1, -1};
	if (pipe2(Ends, O_CLOEXEC) == 0)
	{
		ReadEnd = fcntl(Ends[0], F_DUPFD_CLOEXEC, FirstFreeDescriptor);
		WriteEnd = fcntl(Ends[1], F_DUPFD_CLOEXEC, FirstFreeDescriptor);
		close(Ends[0]);
		close(Ends[1]);
	}
}

std::string DecodeBase64(const std::string& Text)
{
	const std::string Alphabet = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
	std::string Bytes;
	unsigned Pending = 0;
	int NumBits = 0;
	for (const char Character : Text.substr(0, Text.find('=')))
	{
		Pending = Pending << 6 | unsigned(Alphabet.find(Character));
		NumBits += 6;
		if (NumBits >= 8)
		{
			NumBits -= 8;
			Bytes += char(Pending >> NumBits & 255u);
		}
	}
	return Bytes;
}
}

std::string FBrowser::FindProgram()
{
	for (const char* const Path : {"/usr/bin/chromium-headless-shell", "/usr/bin/chromium"})
	{
		if (std::filesystem::exists(Path))
		{
			return Path;
		}
	}
	return {};
}

FBrowser::FBrowser()
{
	std::string Pattern = (std::filesystem::temp_directory_path() / "vexel-browser-XXXXXX").string();
	Profile = mkdtemp(Pattern.data());
	int ReadsFrom = -1;
	int WritesTo = -1;
	OpenPipe(ReadsFrom, ToBrowser);
	OpenPipe(FromBrowser, WritesTo);
	std::vector<std::string> Words = {FindProgram(), "--headless", "--remote-debugging-pipe", "--user-data-dir=" + Profile.string(),
		"--disable-gpu",
		"--disable-dev-shm-usage", "--no-first-run", "--disable-background-networking", "--disable-component-update", "--hide-scrollbars",
		"--window-size=900,760"};
	if (geteuid() == 0)
	{
		// The browser's own sandbox refuses to work for root, as which tests run in a container.
		Words.push_back("--no-sandbox");
	}
	Words.push_back("about:blank");
	Program = std::make_unique<FStartedProgram>(
		Words, FProgramSurroundings{.PassedDescriptors = {{ReadsFrom, BrowserReads}, {WritesTo, BrowserWrites}}, .TimeoutSeconds = 120});
	close(ReadsFrom);
	close(WritesTo);
	const nlohmann::json Target = Call("Target.createTarget", {{"url", "about:blank"}}, false);
	const nlohmann::json Session = Call("Target.attachToTarget", {{"targetId", Target.value("targetId", "")}, {"flatten", true}}, false);
	SessionId = Session.value("sessionId", "");
	Call("Page.enable", nlohmann::json::object());
}

FBrowser::~FBrowser()
{
	// Killed alone, it would leave its children writing into the profile. They have its streams, which end with the last of them.
	Call("Browser.close", nlohmann::json::object(), false);
	Program->Finish();
	close(ToBrowser);
	close(FromBrowser);
	std::error_code Ignored;
	std::filesystem::remove_all(Profile, Ignored);
}

nlohmann::json FBrowser::ReadMessage()
{
	size_t End = 0;
	while ((End = Buffered.find('\0')) == std::string::npos)
	{
		char Bytes[65536];
		pollfd Watched{FromBrowser, POLLIN, 0};
		const int Ready = poll(&Watched, 1, int(std::chrono::milliseconds(Patience).count()));
		const ssize_t Num = Ready > 0 ? read(FromBrowser, Bytes, sizeof(Bytes)) : 0;
		if (Num <= 0)
		{
			return nullptr;
		}
		Buffered.append(Bytes, size_t(Num));
	}
	nlohmann::json Message = nlohmann::json::parse(Buffered.substr(0, End), nullptr, false);
	Buffered.erase(0, End + 1);
	return Message;
}

nlohmann::json FBrowser::Call(const std::string& Method, nlohmann::json Parameters, bool bOfPage)
{
	nlohmann::json Command = {{"id", ++LastCall}, {"method", Method}, {"params", std::move(Parameters)}};
	if (bOfPage)
	{
		Command["sessionId"] = SessionId;
	}
	const std::string Text = Command.dump() + '\0';
	if (write(ToBrowser, Text.data(), Text.size()) != ssize_t(Text.size()))
	{
		return nlohmann::json::object();
	}
	while (true)
	{
		const nlohmann::json Message = ReadMessage();
		if (!Message.is_object() || Message.value("id", 0) == LastCall)
		{
			return Message.is_object() ? Message.value("result", nlohmann::json::object()) : nlohmann::json::object();
		}
	}
}

void FBrowser::Open(const std::string& Url)
{
	Call("Page.navigate", {{"url", Url}});
}

std::string FBrowser::Evaluate(const std::string& Script)
{
	const nlohmann::json Answer = Call("Runtime.evaluate", {{"expression", "String(" + Script + ")"}, {"returnByValue", true}});
	return Answer.contains("result") ? Answer["result"].value("value", "") : "";
}

bool FBrowser::WaitForTitle(const std::string& Title)
{
	const auto Deadline = std::chrono::steady_clock::now() + Patience;
	while (GetTitle() != Title || Evaluate("document.readyState") != "complete")
	{
		if (std::chrono::steady_clock::now() > Deadline)
		{
			return false;
		}
		std::this_thread::sleep_for(std::chrono::milliseconds(20));
	}
	return true;
}

bool FBrowser::Click(const std::string& Selector)
{
	const std::string Place = Evaluate("(() => { const E = document.querySelector(" + nlohmann::json(Selector).dump() +
		"); if (!E) return ''; const R = E.getBoundingClientRect(); return JSON.stringify([R.x + R.width / 2, R.y + R.height / 2]); })()");
	const nlohmann::json Point = nlohmann::json::parse(Place, nullptr, false);
	if (!Point.is_array())
	{
		return false;
	}
	for (const char* const Kind : {"mousePressed", "mouseReleased"})
	{
		Call("Input.dispatchMouseEvent", {{"type", Kind}, {"x", Point[0]}, {"y", Point[1]}, {"button", "left"}, {"clickCount", 1}});
	}
	return true;
}

void FBrowser::TakePicture(const std::string& Name)
{
	if (const char* const Directory = std::getenv("VEXEL_SCREENSHOTS"))
	{
		const std::string Picture = DecodeBase64(Call("Page.captureScreenshot", {{"format", "png"}}).value("data", ""));
		std::ofstream(std::filesystem::path(Directory) / Name, std::ios::binary) << Picture;
	}
}
