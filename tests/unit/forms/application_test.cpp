#include "forms/application.h"

#include "platform/runtime_error.h"
#include "unit/forms/forms_test.h"

#include <new>

namespace arbolith {

using ApplicationTest = FormsTest;

TEST_F(ApplicationTest, KnowsItsFolderAndCommandLine) {
    EXPECT_EQ(application.Folder(), "/folder");
    EXPECT_EQ(application.PathOf("_INPUT.TMP"), "/folder/_INPUT.TMP");
    EXPECT_EQ(application.CommandLine(), "\"command line\"");
}

TEST_F(ApplicationTest, ShowsARuntimeErrorThatEscapesAnEventAndLivesOn) {
    application.Enter([] { throw RuntimeError(ErrorNumber::kOverflow); });
    ASSERT_EQ(host.boxes.size(), 1U);
    EXPECT_EQ(host.boxes[0].text, "Run-time error '6':\nOverflow");
    EXPECT_EQ(host.boxes[0].title, "");
    EXPECT_EQ(host.boxes[0].icon, BoxIcon::kStop);
    EXPECT_EQ(host.boxes[0].buttons, BoxButtons::kOk);
    application.Enter(Note("next event"));
    EXPECT_EQ(log, (Log{"next event"}));
}

TEST_F(ApplicationTest, ShowsAFailedAllocationAsOutOfMemory) {
    application.Enter([] { throw std::bad_alloc(); });
    ASSERT_EQ(host.boxes.size(), 1U);
    EXPECT_EQ(host.boxes[0].text, "Run-time error '7':\nOut of memory");
}

TEST_F(ApplicationTest, SettlesTheViewsBehindEveryEvent) {
    application.onSettled = Note("settled");
    application.Enter(Note("event"));
    application.Enter([] { throw RuntimeError(ErrorNumber::kSubscript); });
    EXPECT_EQ(log, (Log{"event", "settled", "settled"}));
}

TEST_F(ApplicationTest, PassesBoxesToTheHost) {
    host.answers = {false};
    EXPECT_FALSE(application.ShowBox("Sure?", "Title", BoxIcon::kExclamation, BoxButtons::kYesNo));
    ASSERT_EQ(host.boxes.size(), 1U);
    EXPECT_EQ(host.boxes[0].text, "Sure?");
    EXPECT_EQ(host.boxes[0].title, "Title");
    EXPECT_EQ(host.boxes[0].icon, BoxIcon::kExclamation);
    EXPECT_EQ(host.boxes[0].buttons, BoxButtons::kYesNo);
}

TEST_F(ApplicationTest, TakesAllFormsAwayAtItsEndAndTellsTheHostOnce) {
    Form other(application, "Other", "", {1000, 1000});
    form.Show();
    other.Show();
    application.End();
    application.End();
    EXPECT_TRUE(application.HasEnded());
    EXPECT_FALSE(form.Visible());
    EXPECT_FALSE(other.Visible());
    EXPECT_EQ(application.ActiveForm(), nullptr);
    EXPECT_EQ(host.ends, 1);
}

TEST_F(ApplicationTest, TakesNoEventAfterItsEnd) {
    application.End();
    application.Enter(Note("event"));
    EXPECT_EQ(log, Log{});
}

TEST_F(ApplicationTest, UnwindsAWaitAtItsEndWithoutABox) {
    application.Enter([this] {
        // A wait in whose midst another event ends the program.
        application.Enter([this] { application.End(); });
        log.push_back("behind the nested event");
        application.UnwindIfEnded();
        log.push_back("never reached");
    });
    EXPECT_EQ(log, (Log{"behind the nested event"}));
    EXPECT_TRUE(host.boxes.empty());
}

TEST_F(ApplicationTest, LetsNoErrorTrapCatchItsEnd) {
    application.Enter([this] {
        try {
            application.End();
            application.UnwindIfEnded();
        } catch (const std::exception&) {
            log.push_back("caught");
        }
        log.push_back("never reached");
    });
    EXPECT_EQ(log, Log{});
}

TEST_F(ApplicationTest, DoesNotUnwindBeforeItsEnd) {
    EXPECT_NO_THROW(application.UnwindIfEnded());
}

TEST_F(ApplicationTest, ShowsTheErrorOfANestedEventAndGoesOnWithTheOuterOne) {
    application.Enter([this] {
        application.Enter([] { throw RuntimeError(ErrorNumber::kTypeMismatch); });
        log.push_back("outer goes on");
    });
    EXPECT_EQ(host.boxes.size(), 1U);
    EXPECT_EQ(log, (Log{"outer goes on"}));
}

TEST_F(ApplicationTest, RemembersTheOrderOfFirstShowing) {
    Form early(application, "Early", "", {1000, 1000});
    Form late(application, "Late", "", {1000, 1000});
    late.Show();
    form.Show();
    late.Hide();
    late.Show();
    EXPECT_EQ(application.FormsByFirstShowing(), (std::vector<Form*>{&late, &form}));
}

}  // namespace arbolith
