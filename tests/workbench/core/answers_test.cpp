#include "workbench/core/answers.h"

#include <gtest/gtest.h>

namespace workbench {

TEST(AnswersTest, AnswersComeInTheirOrderAndOnce) {
    Answers answers;
    answers.queue("box", "ok");
    answers.queue("box", "cancel");
    EXPECT_EQ(answers.take("box"), Value("ok"));
    EXPECT_EQ(answers.take("box"), Value("cancel"));
    EXPECT_FALSE(answers.take("box").has_value());
}

TEST(AnswersTest, EachKindHasItsOwnQueue) {
    Answers answers;
    answers.queue("menu", "Panels/Layers");
    EXPECT_FALSE(answers.take("box").has_value());
    EXPECT_EQ(answers.take("menu"), Value("Panels/Layers"));
}

}  // namespace workbench
