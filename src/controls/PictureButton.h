// A push button with a picture beside its text, the picture on the left as in the program's dialogs.
#pragma once

#include <string_view>

class QPushButton;
class QString;
class QWidget;

// `text` is the English caption (translated here); `picture` a resource path; `name` the object name tests find.
QPushButton* pictureButton(std::string_view text, const QString& picture, const char* name, QWidget* parent);
