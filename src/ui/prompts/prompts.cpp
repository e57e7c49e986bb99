#include "ui/prompts/prompts.h"

#include "ui/prompts/nativeprompts.h"

#include <utility>

namespace {

// Null stands for the platform's prompts.
Prompts *&replacement()
{
    static Prompts *instance = nullptr;
    return instance;
}

} // namespace

Prompts &Prompts::current()
{
    static NativePrompts native;
    Prompts *const other = replacement();
    return other != nullptr ? *other : native;
}

void Prompts::information(QWidget *parent, const QString &title, const QString &text)
{
    show(parent,
         {QMessageBox::Information, title, text, QMessageBox::Ok, QMessageBox::NoButton, {}, Qt::PlainText});
}

void Prompts::warning(QWidget *parent, const QString &title, const QString &text)
{
    show(parent,
         {QMessageBox::Warning, title, text, QMessageBox::Ok, QMessageBox::NoButton, {}, Qt::PlainText});
}

bool Prompts::confirms(QWidget *parent, QMessageBox::Icon icon, const QString &title, const QString &text,
                       QMessageBox::StandardButton byDefault)
{
    return show(parent,
                {icon, title, text, QMessageBox::Yes | QMessageBox::No, byDefault, {}, Qt::PlainText}) ==
           QMessageBox::Yes;
}

ScopedPrompts::ScopedPrompts(Prompts &prompts)
    : m_previous(std::exchange(replacement(), &prompts))
{}

ScopedPrompts::~ScopedPrompts()
{
    replacement() = m_previous;
}
