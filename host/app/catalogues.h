#pragma once

#include <QReadWriteLock>
#include <QTranslator>

#include <memory>
#include <vector>

/// The texts of the host, the plug-in and Qt in one language, with English in the gaps, as one
/// translator. Stays installed: the next language replaces what is in it, so that a change is told
/// to the widgets once and not once a file. Any thread may ask.
class Catalogues : public QTranslator
{
    Q_OBJECT

public:
    explicit Catalogues(QObject *parent = nullptr);

    /// False when a catalogue of the program itself is missing for the language of \a code.
    bool load(const QString &code);

    QString translate(const char *context, const char *sourceText, const char *disambiguation,
                      int n) const override;
    bool isEmpty() const override { return false; }

private:
    using List = std::vector<std::unique_ptr<QTranslator>>;
    static bool add(List *list, const QString &name, const QString &folder);

    mutable QReadWriteLock m_lock; // guards what follows
    List m_chosen;
    List m_english;
};
