#include "Server/LoginPages.h"

#include <string_view>

namespace VexelService
{

namespace
{

constexpr const char* HtmlType = "text/html; charset=utf-8";

constexpr const char* Style = R"css(:root {
	color-scheme: light dark;
	--page: #eef1f6;
	--card: #ffffff;
	--line: #d9dee8;
	--text: #1b2333;
	--soft: #5b6578;
	--accent: #2f5fd7;
	--accent-text: #ffffff;
	--good: #1d8a55;
	--bad: #b3382c;
}
@media (prefers-color-scheme: dark) {
	:root {
		--page: #12161f;
		--card: #1b2130;
		--line: #2f384c;
		--text: #e8ecf5;
		--soft: #9aa5bb;
		--accent: #6c95ff;
		--accent-text: #0d1220;
		--good: #55c88f;
		--bad: #f08a7e;
	}
}
* {
	box-sizing: border-box;
}
body {
	margin: 0;
	min-height: 100vh;
	display: grid;
	place-items: center;
	padding: 1.5rem;
	background: var(--page);
	color: var(--text);
	font: 16px/1.5 system-ui, "Segoe UI", "Liberation Sans", sans-serif;
}
main {
	width: 100%;
	max-width: 27rem;
	padding: 2.25rem 2.25rem 2rem;
	background: var(--card);
	border: 1px solid var(--line);
	border-radius: 14px;
	box-shadow: 0 12px 40px rgb(20 30 60 / 10%);
}
.brand {
	display: flex;
	align-items: center;
	gap: 0.6rem;
	margin: 0 0 1.5rem;
	font-weight: 600;
	letter-spacing: 0.01em;
}
.brand svg {
	width: 30px;
	height: 30px;
	color: var(--accent);
}
h1 {
	margin: 0 0 0.6rem;
	font-size: 1.4rem;
	line-height: 1.25;
}
p {
	margin: 0 0 1rem;
}
.soft {
	color: var(--soft);
	font-size: 0.9rem;
}
.account {
	display: grid;
	grid-template-columns: auto 1fr;
	gap: 0 0.8rem;
	align-items: center;
	margin: 1.25rem 0;
	padding: 0.8rem 1rem;
	border: 1px solid var(--line);
	border-radius: 10px;
	overflow-wrap: anywhere;
}
.initial {
	grid-row: span 2;
	display: grid;
	place-items: center;
	width: 40px;
	height: 40px;
	border-radius: 50%;
	background: var(--accent);
	color: var(--accent-text);
	font-weight: 600;
}
ul {
	margin: 0 0 1.25rem;
	padding: 0;
	list-style: none;
}
li {
	padding: 0.3rem 0 0.3rem 1.7rem;
	position: relative;
}
li::before {
	content: "";
	position: absolute;
	left: 0.35rem;
	top: 0.6rem;
	width: 0.35rem;
	height: 0.7rem;
	border: solid var(--good);
	border-width: 0 2px 2px 0;
	transform: rotate(45deg);
}
form {
	display: grid;
	grid-template-columns: 1fr 1fr;
	gap: 0.75rem;
	margin: 1.5rem 0 1rem;
}
button {
	padding: 0.7rem 1rem;
	border: 1px solid var(--line);
	border-radius: 9px;
	background: transparent;
	color: inherit;
	font: inherit;
	font-weight: 600;
	cursor: pointer;
}
button.primary {
	border-color: var(--accent);
	background: var(--accent);
	color: var(--accent-text);
}
button:hover {
	filter: brightness(1.08);
}
button:focus-visible {
	outline: 3px solid var(--accent);
	outline-offset: 2px;
}
.mark {
	width: 54px;
	height: 54px;
	margin: 0 0 1rem;
}
.good {
	color: var(--good);
}
.bad {
	color: var(--bad);
}
)css";

constexpr const char* BrandMark =
	R"html(<p class="brand"><svg viewBox="0 0 32 32" aria-hidden="true"><path fill="currentColor" d="M4 5h6l6 15 6-15h6L18.6 27h-5.2z"/>
<circle cx="16" cy="7" r="3" fill="currentColor"/></svg>Vexel</p>
)html";

constexpr const char* GoodMark =
	R"html(<svg class="mark good" viewBox="0 0 48 48" aria-hidden="true" fill="none" stroke="currentColor">
<circle cx="24" cy="24" r="21" stroke-width="3"/>
<path d="M15 25l6.5 6.5L34 18" stroke-width="3.5" stroke-linecap="round" stroke-linejoin="round"/></svg>
)html";

constexpr const char* BadMark =
	R"html(<svg class="mark bad" viewBox="0 0 48 48" aria-hidden="true" fill="none" stroke="currentColor">
<circle cx="24" cy="24" r="21" stroke-width="3"/><path d="M17 17l14 14M31 17L17 31" stroke-width="3.5" stroke-linecap="round"/></svg>
)html";

std::string Escape(std::string_view Text)
{
	std::string Escaped;
	for (const char Character : Text)
	{
		switch (Character)
		{
			case '&':
				Escaped += "&amp;";
				break;
			case '<':
				Escaped += "&lt;";
				break;
			case '>':
				Escaped += "&gt;";
				break;
			case '"':
				Escaped += "&quot;";
				break;
			case '\'':
				Escaped += "&#39;";
				break;
			default:
				Escaped += Character;
		}
	}
	return Escaped;
}

// The first character of UTF-8 text.
std::string_view FirstCharacter(std::string_view Text)
{
	std::size_t Length = Text.empty() ? 0 : 1;
	while (Length < Text.size() && (static_cast<unsigned char>(Text[Length]) & 0xC0) == 0x80)
	{
		++Length;
	}
	return Text.substr(0, Length);
}

// "http://localhost:4000" of "http://localhost:4000/auth-callback".
std::string OriginOf(const std::string& Url)
{
	return Url.substr(0, Url.find('/', Url.find("//") + 2));
}

// FormTarget is where the browser may be sent by the page's form beside the service itself; empty for nowhere.
void SendPage(httplib::Response& Response, int Status, std::string_view Title, const std::string& Content, const std::string& FormTarget)
{
	Response.status = Status;
	Response.set_header("Content-Security-Policy",
		"default-src 'none'; style-src 'self'; base-uri 'none'; frame-ancestors 'none'; form-action 'self'" +
			(FormTarget.empty() ? "" : " " + FormTarget));
	Response.set_header("X-Frame-Options", "DENY");
	Response.set_header("X-Content-Type-Options", "nosniff");
	Response.set_header("Cross-Origin-Opener-Policy", "same-origin");
	// With "no-referrer" the form's own request would come without its origin, which is checked.
	Response.set_header("Referrer-Policy", "same-origin");
	Response.set_header("Cache-Control", "no-store");
	Response.set_content("<!DOCTYPE html>\n<html lang=\"en\">\n<head>\n<meta charset=\"utf-8\">\n<title>" + Escape(Title) +
			" - Vexel</title>\n<meta name=\"viewport\" content=\"width=device-width, initial-scale=1\">\n"
			"<link rel=\"stylesheet\" href=\"/oauth/page.css\">\n</head>\n<body>\n<main>\n" +
			BrandMark + Content + "</main>\n</body>\n</html>\n",
		HtmlType);
}

}

void LoginPages::SendConsent(httplib::Response& Response, const FConsent& Consent)
{
	const bool bRedirects = Consent.Request.RedirectUri != NoRedirectUri;
	const std::string Origin = bRedirects ? OriginOf(Consent.Request.RedirectUri) : std::string();
	const std::string Way = bRedirects ? "Afterwards your browser goes to " + Escape(Origin) + ", which is Vexel on this computer."
									   : "Vexel is waiting for your answer and fetches it by itself.";
	SendPage(Response, 200, "Allow access",
		"<h1>Allow Vexel to use your account?</h1>\n"
		"<p>The Vexel plug-in of your Unreal Editor, or the program <em>vexel</em>, asks to log in.</p>\n"
		"<div class=\"account\"><span class=\"initial\" aria-hidden=\"true\">" +
			Escape(FirstCharacter(Consent.User.Name)) + "</span><strong>" + Escape(Consent.User.Name) + "</strong><span class=\"soft\">" +
			Escape(Consent.User.Email) +
			"</span></div>\n"
			"<ul>\n<li>Chat with the assistant in your name</li>\n<li>Read your name, e-mail address, credits and features</li>\n</ul>\n"
			"<form method=\"post\" action=\"/oauth/decision\">\n"
			"<input type=\"hidden\" name=\"auth_request_id\" value=\"" +
			Escape(Consent.RequestId) +
			"\">\n"
			"<input type=\"hidden\" name=\"form_token\" value=\"" +
			Escape(Consent.FormToken) +
			"\">\n"
			"<button name=\"decision\" value=\"deny\">Deny</button>\n"
			"<button class=\"primary\" name=\"decision\" value=\"approve\">Allow</button>\n"
			"</form>\n"
			"<p class=\"soft\">Allow this only if you have just started a login. " +
			Way + "</p>\n",
		Origin);
}

void LoginPages::SendOutcome(httplib::Response& Response, EAuthorizationStatus Status)
{
	switch (Status)
	{
		case EAuthorizationStatus::Approved:
			SendPage(Response, 200, "Logged in",
				std::string(GoodMark) + "<h1>You are logged in</h1>\n"
										"<p>Vexel may use your account now. You can close this page and go back to it.</p>\n"
										"<p class=\"soft\">To take this back, log out in Vexel.</p>\n",
				"");
			break;
		case EAuthorizationStatus::Denied:
			SendPage(Response, 200, "Access denied",
				std::string(BadMark) + "<h1>You denied access</h1>\n<p>Vexel was not logged in. You can close this page.</p>\n", "");
			break;
		case EAuthorizationStatus::Pending:
			SendPage(Response, 200, "Undecided",
				"<h1>Nothing was decided</h1>\n<p>This login still waits for your answer, on its own page.</p>\n", "");
			break;
		case EAuthorizationStatus::Unknown:
			SendPage(Response, 404, "Unknown login",
				std::string(BadMark) + "<h1>This login is not known</h1>\n<p>It may have taken too long. Start it again in Vexel.</p>\n", "");
			break;
	}
}

void LoginPages::SendRefusal(httplib::Response& Response, const FRefusal& Refusal)
{
	SendPage(Response, Refusal.Status, "Login refused",
		std::string(BadMark) + "<h1>This login cannot go on</h1>\n<p>" + Escape(Refusal.Detail) +
			"</p>\n<p class=\"soft\">Start it again in Vexel.</p>\n",
		"");
}

void LoginPages::SendStyle(httplib::Response& Response)
{
	Response.set_header("X-Content-Type-Options", "nosniff");
	Response.set_header("Cache-Control", "no-cache");
	Response.set_content(Style, "text/css; charset=utf-8");
}

}
