#include "controls/PictureButton.h"

#include <QIcon>
#include <QPushButton>

#include "controls/UiText.h"

QPushButton* pictureButton(std::string_view text, const QString& picture, const char* name, QWidget* parent) {
    auto* button = new QPushButton(QIcon(picture), uiText(text), parent);
    button->setObjectName(name);
    button->setIconSize(QSize(24, 24));
    button->setAutoDefault(false);
    button->setStyleSheet("text-align: left; padding: 4px 10px;");
    return button;
}
