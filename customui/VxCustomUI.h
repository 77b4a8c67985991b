/// @file VxCustomUI.h
/// Stand-in for the companion widget library: each class is the Qt widget of the same kind, without
/// the companion's styling. The spin boxes also open up their line edit, as the companion does.
#pragma once

#include <QtWidgets/QComboBox>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QSpinBox>
#include <QtWidgets/QTextEdit>

class Q_DECL_EXPORT VxCUILineEdit : public QLineEdit
{
    Q_OBJECT
public:
    using QLineEdit::QLineEdit;
};

class Q_DECL_EXPORT VxCUITextEdit : public QTextEdit
{
    Q_OBJECT
public:
    using QTextEdit::QTextEdit;
};

class Q_DECL_EXPORT VxCUISpinBox : public QSpinBox
{
    Q_OBJECT
public:
    using QSpinBox::lineEdit;
    using QSpinBox::QSpinBox;
    using QSpinBox::setLineEdit;
};

class Q_DECL_EXPORT VxCUIDoubleSpinBox : public QDoubleSpinBox
{
    Q_OBJECT
public:
    using QDoubleSpinBox::lineEdit;
    using QDoubleSpinBox::QDoubleSpinBox;
    using QDoubleSpinBox::setLineEdit;
};

class Q_DECL_EXPORT VxCUIComboBox : public QComboBox
{
    Q_OBJECT
public:
    using QComboBox::QComboBox;
};

class Q_DECL_EXPORT VxCUILabel : public QLabel
{
    Q_OBJECT
public:
    using QLabel::QLabel;
};
