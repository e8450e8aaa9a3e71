#pragma once

#include "update/versionnumber.h"

#include <QNetworkAccessManager>
#include <QObject>

#include <memory>

class QByteArray;
class QMessageBox;
class QNetworkReply;
class QWidget;
struct VersionReply;

/// One check for a newer version: made for it, started by check() from the event loop, and destroyed with its parent,
/// which cancels it. Its boxes stand on its parent, a widget.
///
/// An automatic check asks at most once a day and shows nothing but a newer version and a reply it cannot read; a
/// manual one always asks and always shows what came of it.
class VersionCheck final : public QObject
{
    Q_OBJECT

public:
    /// The application version must have exactly four parts.
    VersionCheck(QObject *parent, bool isManual);

public Q_SLOTS:
    /// Sends the query, or returns at once when an automatic check already ran today.
    void check();
    void downloadFinished(QNetworkReply *reply);

private:
    void showConnectionError();
    void showNoUpdates(QMessageBox &box);
    void showNewVersion(QMessageBox &box, const VersionReply &newest);
    QWidget *parentWidget() const;

    QNetworkAccessManager network;
    VersionNumber localVersion = {};
    bool manual;
    bool beta = false;                ///< nothing sets it
    std::shared_ptr<QByteArray> body; ///< of the reply, as far as it has arrived
};
