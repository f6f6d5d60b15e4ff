#include "Assistant/Markdown.h"

#include "Assistant/Words.h"

#include <algorithm>

namespace VexelService
{

std::string Bold(const std::string& Text)
{
	return "**" + Text + "**";
}

std::string Code(const std::string& Text)
{
	return "`" + Text + "`";
}

std::string CodeBlock(std::string_view Text, std::string_view Language)
{
	// Longer than any run of such marks inside, so that nothing in the text can end the block.
	std::size_t Longest = 2;
	std::size_t Run = 0;
	for (const char Character : Text)
	{
		Run = Character == '`' ? Run + 1 : 0;
		Longest = std::max(Longest, Run);
	}
	const std::string Fence(Longest + 1, '`');
	std::string Block = Fence + std::string(Language) + "\n" + std::string(Text);
	return Block + (Text.empty() || Text.back() != '\n' ? "\n" : "") + Fence + "\n";
}

std::string BulletList(const std::vector<std::string>& Items, std::size_t Most)
{
	std::string Text;
	for (std::size_t Index = 0; Index < std::min(Items.size(), Most); ++Index)
	{
		Text += "- " + Items[Index] + "\n";
	}
	return Items.size() > Most ? Text + "- and " + CountOf(Items.size() - Most, "other") + "\n" : Text;
}

}
