#include "service/register_panel.h"

#include "service/service_protocol.h"

using l10n::ServiceText;

namespace {

const ReplyLengths kRegisterReply{service::kRegisterReplySize};

}  // namespace

RegisterPanel::RegisterPanel(ServiceChannel& channel, QObject* parent)
    : ServicePanel(channel, parent) {}

bool RegisterPanel::clear() {
    if (!begin()) return false;
    // The selectors are whatever the previous request left.
    send(pack_pc_cmd(service::kEepromClear, channel_.selectors), AttemptCount::Inherited,
         ReplyLengths::any(), [this](const ServiceChannel::Reply& reply) {
             if (!reply) {
                 box(ServiceText::ClearFailed, ServiceText::TitleRfReg);
                 finish(ServiceOutcome::Failed);
                 return;
             }
             grid = {};
             box(ServiceText::ClearOk, ServiceText::TitleRfReg);
             finish(ServiceOutcome::Succeeded);
         });
    return true;
}

bool RegisterPanel::readEeprom() {
    if (!begin()) return false;
    readCommand_ = service::kEepromRowRead;
    row_ = 1;
    rowCount_ = RegisterGrid::kRows;
    readRow();
    return true;
}

bool RegisterPanel::readRfic() {
    const int count = Chk_RegTot(grid);
    if (count == 0) {
        return refuse(text(ServiceText::AddressEmpty), text(ServiceText::TitleRegEmpty));
    }
    for (int r = 1; r <= count; ++r) {
        const RegisterBytes address = registerAddress(grid, r, language());
        if (!address.ok()) return refuse(address.error, text(ServiceText::TitleRfReg));
        toSend_[static_cast<size_t>(r - 1)] = address;
    }
    if (!begin()) return false;
    readCommand_ = service::kRficRead;
    row_ = 1;
    rowCount_ = count;
    readRow();
    return true;
}

void RegisterPanel::readRow() {
    channel_.selectors.RequestBlock = row_ - 1;
    channel_.selectors.RequestSub = readCommand_ == service::kEepromRowRead
                                        ? RegisterGrid::kRows
                                        : toSend_[static_cast<size_t>(row_ - 1)].address;
    send(pack_pc_cmd(readCommand_, channel_.selectors), AttemptCount::Inherited, kRegisterReply,
         [this](const ServiceChannel::Reply& reply) { rowRead(reply); });
}

void RegisterPanel::rowRead(const ServiceChannel::Reply& reply) {
    if (!reply) {
        box(ServiceText::RegReadFailed, ServiceText::TitleRfReg);
        finish(ServiceOutcome::Failed);
        return;
    }
    grid.row(row_) = registerRowFromReply(*reply);
    if (++row_ <= rowCount_) {
        readRow();
        return;
    }
    box(ServiceText::RegReadOk, ServiceText::TitleRfReg);
    finish(ServiceOutcome::Succeeded);
}

bool RegisterPanel::saveEeprom() {
    return startWrite(service::kEepromRowWrite);
}

bool RegisterPanel::writeRfic() {
    return startWrite(service::kRficWrite);
}

bool RegisterPanel::startWrite(quint8 command) {
    const int count = Chk_RegTot(grid);
    if (count == 0) {
        return refuse(text(ServiceText::AddressEmpty), text(ServiceText::TitleRegEmpty));
    }
    if (Chk_RegDt(grid) == 0) {
        return refuse(text(ServiceText::DataEmpty), text(ServiceText::TitleRegEmpty));
    }
    // Every row is checked before the first goes out: a half-written table helps nobody.
    for (int r = 1; r <= count; ++r) {
        const RegisterBytes bytes = registerBytes(grid, r, language());
        if (!bytes.ok()) return refuse(bytes.error, text(ServiceText::TitleRfReg));
        toSend_[static_cast<size_t>(r - 1)] = bytes;
    }
    if (!begin()) return false;
    writeCommand_ = command;
    row_ = 1;
    rowCount_ = count;
    writeRow();
    return true;
}

void RegisterPanel::writeRow() {
    channel_.selectors = {row_ - 1, rowCount_};
    const QByteArray frame =
        build_reg_row(writeCommand_, channel_.selectors, toSend_[static_cast<size_t>(row_ - 1)]);
    send(frame, AttemptCount::Single, ReplyLengths::any(),
         [this](const ServiceChannel::Reply& reply) {
             if (!reply) {
                 box(ServiceText::CheckPort, ServiceText::TitleReg);
                 finish(ServiceOutcome::Failed);
                 return;
             }
             if (++row_ <= rowCount_) {
                 writeRow();
                 return;
             }
             box(ServiceText::RegWriteOk, ServiceText::TitleRfReg);
             finish(ServiceOutcome::Succeeded);
         });
}
