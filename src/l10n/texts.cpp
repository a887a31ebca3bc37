#include "l10n/texts.h"

#include <iterator>

#include "l10n/text_pair.h"

namespace l10n {
namespace {

const TextPair kCaptionTable[] = {
    {u8"工程测试", u8"Program"},                   // 0
    {u8"文件(&F)", u8"File"},                      // 1
    {u8"打开文件(&O)", u8"Open"},                  // 2
    {u8"保存文件(&s)", u8"SaveAs"},                // 3
    {u8"退出(&E)", u8"Exit"},                      // 4
    {u8"设置(&I)", u8"Setup"},                     // 5
    {u8"端口(&C)", u8"Port"},                      // 6
    {u8"波特率(&P)", u8"Rate"},                    // 7
    {u8"其他(&O)", u8"Other"},                     // 8
    {u8"机型选择(&J)", u8"Model"},                 // 9
    {u8"编程操作(&X)", u8"Program"},               // 10
    {u8"读取频率(&R)", u8"Read"},                  // 11
    {u8"开始写频(&W)", u8"Write"},                 // 12
    {u8"工程模式", u8"Engineering model"},         // 13
    {u8"测试模式", u8"TEST model"},                // 14
    {u8"写ID", u8"Write ID"},                      // 15
    {u8"语言/language", u8"语言/language"},        // 16
    {u8"打开文件", u8"Open"},                      // 17
    {u8"保存文件", u8"SaveAs"},                    // 18
    {u8"频率选择", u8"Frequency Select"},          // 19
    {u8"1:美国频率", u8"1:USA"},                   // 20
    {u8"2:中国频率", u8"2:CHINA"},                 // 21
    {u8"3:台湾频率", u8"3:Taiwan"},                // 22
    {u8"4:自定义频率", u8"4:custom"},              // 23
    {u8"模式选择", u8"Model Select"},              // 24
    {u8"1:普通模式", u8"1:Normal"},                // 25
    {u8"2:专业模式", u8"2:Professional"},          // 26
    {u8"发射", u8"Tx"},                            // 27
    {u8"允许", u8"Enable"},                        // 28
    {u8"允许", u8"Enable"},                        // 29
    {u8"禁止", u8"Disable"},                       // 30
    {u8"遇忙禁发", u8"BusyCh Lock"},               // 31
    {u8"关", u8"OFF"},                             // 32
    {u8"关", u8"OFF"},                             // 33
    {u8"开", u8"ON"},                              // 34
    {u8"FSK/DTMF", u8"FSK/DTMF"},                  // 35
    {u8"关", u8"OFF"},                             // 36
    {u8"关", u8"OFF"},                             // 37
    {u8"开", u8"ON"},                              // 38
    {u8"信道设置", u8"Channel Setup"},             // 39
    {u8"信道", u8"Channel"},                       // 40
    {u8"接收频率", u8"Rx Frequency"},              // 41
    {u8"接收亚音", u8"Rx Code"},                   // 42
    {u8"发射频率", u8"Tx Frequency"},              // 43
    {u8"发射亚音", u8"Tx Code"},                   // 44
    {u8"带宽", u8"bandwidth"},                     // 45
    {u8"发射功率", u8"Power"},                     // 46
    {u8"信道编辑", u8"Channel Edit"},              // 47
    {u8"信道总数", u8"Total number of channels"},  // 48
    {u8"频率步长(k)", u8"Frequency step(k)"},      // 49
    {u8"接收", u8"Rx"},                            // 50
    {u8"发射", u8"Tx"},                            // 51
    {u8"开始写频(&S)", u8"Write"},                 // 52
    {u8"读取频率(&E)", u8"Read"},                  // 53
    {u8"窄带", u8"narrow"},                        // 54
    {u8"宽带", u8"wide"},                          // 55
    {u8"大", u8"high"},                            // 56
    {u8"小", u8"low"},                             // 57
    {u8"音频测试", u8"Audio Test"},                // 58
    {u8"语音报号", u8"Voice"},                     // 59
    {u8"蓝牙", u8"bluetooth"},                     // 60
    {u8"自定义", u8"Custom"},                      // 61
    {u8"自动锁键", u8"AutoLock"},                  // 62
    {u8"0:400--470M", u8"0:400--470M"},            // 63
    {u8"1:300--400M", u8"1:300--400M"},            // 64
    {u8"2:200--300M", u8"2:200--300M"},            // 65
    {u8"3:100--200M", u8"3:100--200M"},            // 66
    {u8"CDCSS", u8"CDCSS"},                        // 67
};
const TextPair kServiceCaptionTable[] = {
    {u8"工程模式", u8"Enginnering"},                  // 0
    {u8"RSSI调整", u8"RSSI"},                         // 1
    {u8"RSSI窄带", u8"RSSI Narrow"},                  // 2
    {u8"RSSI宽带", u8"RSSI Wide"},                    // 3
    {u8"数据读取", u8"Read"},                         // 4
    {u8"调整", u8"Write"},                            // 5
    {u8"向对讲机写入数据", u8"Write data to Radio"},  // 6
    {u8"TX PWM(大功率)", u8"High Power"},             // 7
    {u8"TX PWM(小功率)", u8"Low Power"},              // 8
    {u8"RX PWM", u8"RX PWM"},                         // 9
};
const TextPair kIdCaptionTable[] = {
    {u8"输入ID", u8"Edit ID"},      // 0
    {u8"ID", u8"ID"},               // 1
    {u8"ID", u8"ID"},               // 2
    {u8"成功数", u8"Success"},      // 3
    {u8"(十进制)", u8"(decimal)"},  // 4
    {u8"写ID", u8"Write ID"},       // 5
    {u8"读ID", u8"Read ID"},        // 6
};
const TextPair kMessageTable[] = {
    {u8"该串口不存在或有问题", u8"COM error"},  // 0 MsgPortFault
    {u8"警告", u8"NOTE"},                       // 1 MsgWarningTitle
    {u8"串口关", u8"COM Closed"},               // 2 MsgPortClosed
    {u8"串口", u8"COM"},                        // 3 MsgPortLabel
    {u8"正在写频……", u8"Writing……"},            // 4 MsgWriting
    {u8"写频完成", u8"Write OK"},               // 5 MsgWriteDone
    {u8"写频失败", u8"Write ERROR"},            // 6 MsgWriteFailed
    {u8"通讯失败", u8"Transmission ERROR"},     // 7 MsgLinkFailed
    {u8"正在读频......", u8"Reading......"},    // 8 MsgReading
    {u8"读频完成", u8"Read OK"},                // 9 MsgReadDone
    {u8"读频出错", u8"Read Error"},             // 10 MsgReadFailed
    {u8"串口开", u8"COM Open"},                 // 11 MsgPortOpen
    {u8"第", u8"Num"},                          // 12 MsgChannelPrefix
    {u8"信道频率输入错误，请重新输入",
     u8"Channl Frequency Input error，Please edit again"},              // 13 MsgChannelFreqError
    {u8"写频失败，请检查输入是否正确", u8"Write Error，Please Check"},  // 14 MsgWriteCheckInput
    {u8"请设置串口", u8"Please check COM Port"},                        // 15 MsgSetPort
    {u8"信道数出错", u8"Channel number error"},                         // 16 MsgChannelCountError
    {u8"请打开通信端口", u8"Please check COM Port"},                    // 17 MsgOpenPort
    {u8"机型信息读取失败", u8"Information read error"},                 // 18 MsgModelReadFailed
    {u8"确认要退出程序吗?", u8"Exit Program?"},                         // 19 MsgConfirmExit
    {u8"确认退出", u8"Exit Program"},                                   // 20 MsgConfirmExitTitle
    {u8"通讯失败，请检查对讲机是否进入写频模式",
     u8"Transmission Error，Check Radio"},  // 21 MsgLinkFailedCheckRadio
    {u8"读取 OK", u8"Read OK"},             // 22 MsgServiceReadOk
    {u8"读取超时", u8"Read Time out"},      // 23 MsgServiceReadTimeout
    {u8"调整", u8"Adjust"},                 // 24 MsgAdjust
    {u8"写频失败，请检查输入是否正确", u8"Write Error，Please check"},  // 25 MsgWriteCheckInputAlt
    {u8"写失败", u8"Write Error"},                                      // 26 MsgServiceWriteFailed
    {u8"ID 输入错误，请重新输入", u8"ID error，Please Check again"},    // 27 MsgIdError
    {u8"向对讲机读入数据", u8"Read data from Radio"},                   // 28 MsgReadFromRadio
    {u8"CTCSS 频率输入错误，请重新输入",
     u8"CTCSS Frequency Input error，Please edit again"},  // 29 MsgCtcssError
};

static_assert(std::size(kCaptionTable) == kCaptionCount);
static_assert(std::size(kServiceCaptionTable) == kServiceCaptionCount);
static_assert(std::size(kIdCaptionTable) == kIdCaptionCount);
static_assert(std::size(kMessageTable) == kMessageCount);

}  // namespace

QString caption(int index, UiLanguage language) {
    return lookUp(kCaptionTable, index, language);
}

QString serviceCaption(int index, UiLanguage language) {
    return lookUp(kServiceCaptionTable, index, language);
}

QString idCaption(int index, UiLanguage language) {
    return lookUp(kIdCaptionTable, index, language);
}

QString message(MessageId id, UiLanguage language) {
    return lookUp(kMessageTable, static_cast<int>(id), language);
}

QString channelMessage(MessageId id, int channelNumber, UiLanguage language) {
    return message(MessageId::MsgChannelPrefix, language) + QString::number(channelNumber) +
           message(id, language);
}

}  // namespace l10n
