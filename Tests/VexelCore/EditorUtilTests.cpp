#include "TaskFixture.h"
#include "VexelEditorUtil.h"

namespace
{
class FEditorUtilTest : public FTaskTest
{
};
}

TEST_F(FEditorUtilTest, AScreenshotOfAnEditorWithoutAWindowIsAnErrorAtTheNextTick)
{
	const TVexelTaskResult<FVexelImage> Result = FVexelEditorUtil::TakeEditorScreenshot();
	EXPECT_FALSE(Result.IsComplete()) << "windows are the game thread's";
	const TVexelExpected<FVexelImage> Image = Await(Result);
	ASSERT_TRUE(Image.HasError());
	EXPECT_EQ(ToUtf8(Image.GetError().ToShortString()), "Screenshot failed: The editor has no window");
}
