// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "app/AppState.h"
#include "app/Requests.h"
#include "history/HistoryStore.h"

#include <QDBusContext>

/// What other programs see of this one on the session bus; docs/dbus.md tells what each member
/// means. Members are named as the bus names them, and the adaptors made of the XML files lead to
/// them. No call is waited for here: those that take time are answered later.
class BusObject final : public QObject, protected QDBusContext {
    Q_OBJECT
    Q_PROPERTY(QString Version READ version CONSTANT)
    Q_PROPERTY(bool Busy READ isBusy NOTIFY busyChanged)

public:
    struct Means {
        Requests requests;
        const AppState& state;
        const HistoryStore& history;
        QString dataFolder; ///< Where the texts of the history are.
    };

    explicit BusObject(Means means);

    QString version() const;
    bool isBusy() const { return m_means.state.isBusy(); }

    // NOLINTBEGIN(readability-identifier-naming): members of the bus begin with a capital.
    QVariantMap Capture(const QString& kind, const QVariantMap& options);
    QList<QVariantMap> History(const QString& search, uint limit);
    void Edit(const QString& id) { withEntry(EntryDeed::Edit, id); }
    void Pin(const QString& id) { withEntry(EntryDeed::Pin, id); }
    void Copy(const QString& id) { withEntry(EntryDeed::Copy, id); }
    void Reveal(const QString& id) { withEntry(EntryDeed::Reveal, id); }
    void Remove(const QString& id) { withEntry(EntryDeed::Remove, id); }
    void EditFile(const QString& path);
    void PinFile(const QString& path);
    void ShowHistory();

    // As desktops start and use programs: org.freedesktop.Application.
    void Activate(const QVariantMap& platformData);
    void Open(const QStringList& uris, const QVariantMap& platformData);
    void ActivateAction(
        const QString& name, const QVariantList& parameters, const QVariantMap& platformData);

Q_SIGNALS:
    void Captured(const QVariantMap& result);
    void HistoryChanged();
    // NOLINTEND(readability-identifier-naming)
    void busyChanged(bool isBusy);

private:
    enum class Answer { Report, Nothing }; ///< What a call that was done is answered with.

    void withEntry(EntryDeed deed, const QString& id);
    bool isPath(const QString& path);
    void refuse(const QString& why);
    void answerLater(Requests::Report report, Answer answer);

    const Means m_means;
};
