#pragma once

#include "Program.h"

#include <filesystem>
#include <memory>
#include <nlohmann/json.hpp>
#include <string>

/**
 * A real browser without a window, which follows its own rules for pages, cookies and redirects. It is driven over a pair of pipes
 * with its debugging protocol. It ends with this object, and leaves nothing on the disk.
 */
class FBrowser
{
public:
	/** Where the browser's program is; empty when the machine has none. */
	static std::string FindProgram();

	FBrowser();
	~FBrowser();

	FBrowser(const FBrowser&) = delete;
	FBrowser& operator=(const FBrowser&) = delete;

	void Open(const std::string& Url);
	/** Waits until the page's title is that; false when that takes longer than twenty seconds. */
	bool WaitForTitle(const std::string& Title);
	std::string GetTitle() { return Evaluate("document.title"); }
	std::string GetAddress() { return Evaluate("location.href"); }
	std::string GetText() { return Evaluate("document.body.innerText"); }
	/** Presses the mouse on the first element of a CSS selector; false when there is none. */
	bool Click(const std::string& Selector);
	/** Writes a picture of the page into the directory that VEXEL_SCREENSHOTS names; nothing without one. */
	void TakePicture(const std::string& Name);
	/** The text of what a script in the page gives. */
	std::string Evaluate(const std::string& Script);

private:
	/** Sends a command and answers its result; null when the browser does not answer in time. */
	nlohmann::json Call(const std::string& Method, nlohmann::json Parameters, bool bOfPage = true);
	nlohmann::json ReadMessage();

	std::filesystem::path Profile;
	std::unique_ptr<FStartedProgram> Program;
	int ToBrowser = -1;
	int FromBrowser = -1;
	std::string Buffered;
	std::string SessionId;
	int LastCall = 0;
};
