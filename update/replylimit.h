#pragma once

#include <memory>

class QByteArray;
class QNetworkReply;

/// Takes the body of a reply as it arrives into `body`, and aborts the request when the
/// server sends more than anybody should: a body of more than 64 KiB, or a header without an end. An aborted request
/// ends as an error of the network.
void takeLimitedBody(QNetworkReply *reply, const std::shared_ptr<QByteArray> &body);
