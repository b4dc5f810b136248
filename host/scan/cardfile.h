#pragma once

#include "host/scan/card.h"
#include "host/scan/founditem.h"

#include <QIODevice>

/// The contents of one file on a card. Holds a card of its own while it lives, so it may be used on
/// any one thread. A place that cannot be read makes read() fail; nothing is filled up with zeros.
class CardFile : public QIODevice
{
public:
    /// Null when the contents are gone or were overwritten; then \a error says why.
    static std::unique_ptr<QIODevice> open(std::shared_ptr<CardPool> pool, const FoundItem &item,
                                           QString *error);
    ~CardFile() override;

    qint64 size() const override { return m_size; }

protected:
    qint64 readData(char *data, qint64 length) override;
    qint64 writeData(const char *, qint64) override { return -1; }

private:
    CardFile(std::shared_ptr<CardPool> pool, std::unique_ptr<Card> card);
    bool find(const FoundItem &item, QString *error);

    std::shared_ptr<CardPool> m_pool;
    std::unique_ptr<Card> m_card;
    TSK_FS_FILE *m_file = nullptr;
    qint64 m_size = 0;
};
