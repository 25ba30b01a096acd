# The feedback page.
target_sources(vandorel_ui PRIVATE
  feedback/FeedbackTagButton.h feedback/FeedbackTagButton.cpp
  feedback/FeedbackTagGrid.h feedback/FeedbackTagGrid.cpp
  feedback/FeedbackTextBox.h feedback/FeedbackTextBox.cpp
  feedback/FeedbackView.h feedback/FeedbackView.cpp
  feedback/MoodButton.h feedback/MoodButton.cpp
)
