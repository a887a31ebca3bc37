#include "l10n/doctor_texts.h"

#include <iterator>

#include "l10n/text_pair.h"

namespace l10n {
namespace {

// In the order of DoctorText.
const TextPair kDoctorTexts[] = {
    {"串口线检查（用户 %1）", "Cable check for user %1"},
    {"没有找到串口设备。", "No serial device found."},
    {"固定名称：%1", "stable name: %1"},
    {"USB %1，%2", "USB %1, %2"},
    {"芯片：%1", "chip: %1"},
    {"驱动：%1", "kernel driver: %1"},
    {"不是 USB 设备", "not a USB device"},
    {"权限：可以打开", "access: you can open it"},
    {"权限：设备文件不存在", "access: the device node is missing"},
    {"权限：不能打开，设备属于 %1 组（权限 %2），而您不在该组中",
     "access: denied; the device belongs to the group %1 (mode %2) and you are not in it"},
    {"权限：不能打开；您已加入 %1 组，但当前登录还没有生效",
     "access: denied; you were added to the group %1, but this login session predates it"},
    {"权限：不能打开，权限 %1 只允许所有者使用（组 %2）",
     "access: denied; its mode %1 lets only its owner use it (group %2)"},
    {"被占用：%1（进程 %2）已打开此串口", "in use: %1 (pid %2) has the port open"},
    {"被占用：%1 是已结束的程序留下的锁文件",
     "in use: %1 is a lock file left behind by a program that has ended"},
    {"brltty 的 udev 规则认领此转换器，可能把它当作盲文显示器占用",
     "brltty: its udev rule claims this adapter and may take it for a braille display"},
    {"ModemManager 可能探测此串口并打乱最初的字节",
     "ModemManager: may probe this port and garble the first bytes"},
    {"ID %1 是大多数仿制 PL2303 芯片使用的 ID，仿制芯片常会丢失字节",
     "ID %1 is the one most copies of the PL2303 chip carry; copies often lose bytes"},
    {"可以使用", "ready to use"},
    {"相关服务：", "Helpers:"},
    {"brltty：%1", "brltty: %1"},
    {"ModemManager：%1", "ModemManager: %1"},
    {"本程序的 udev 规则：%1", "radioprog's udev rule: %1"},
    {"未安装", "not installed"},
    {"已安装，未运行", "installed, not running"},
    {"正在运行", "running"},
    {"未安装", "not installed"},
    {"解决办法：", "What to do:"},
    {"没有发现问题。", "Nothing stands in the way."},
    {"把自己加入 %1 组，然后注销并重新登录（或重启）后生效：",
     "Add yourself to the group %1, then log out and in again (or restart); it applies only "
     "to new logins:"},
    {"您已在 %1 组中，但当前登录早于此设置：请注销并重新登录。在此之前可在一个终端中使用：",
     "You are in the group %1 already, but this login predates it: log out and in again. "
     "Meanwhile, for one terminal:"},
    {"安装本程序的 udev 规则（dialout 组、当前登录用户可用、ModemManager 不再探测），然后重新插入"
     "串口线：",
     "Install radioprog's udev rule (group dialout, access for the logged-in user, "
     "ModemManager kept away), then unplug and plug in the cable:"},
    {"本程序的 udev 规则已安装，但还没有应用到此串口线：重新加载规则并重新插入串口线：",
     "radioprog's udev rule is installed but not yet applied to the cable: reload the rules, "
     "then unplug and plug in the cable:"},
    {"关闭 %1，它正占用此串口。", "Close %1, which has the port open."},
    {"删除已结束的程序留下的锁文件：", "Remove the lock file a program left behind:"},
    {"阻止 brltty 占用转换器（如果您不使用盲文显示器）：",
     "Keep brltty away from the adapter (unless you use a braille display):"},
    {"%1 使用 PL2303 仿制芯片常用的 ID：如果对讲机不应答或丢失数据，请换用 CH340、CP210x 或 FTDI "
     "芯片的串口线。",
     "%1 carries the ID most PL2303 copies use: if the radio does not answer or bytes go "
     "missing, use a cable with a CH340, CP210x or FTDI chip."},
    {"插入串口线。如果仍然没有串口设备，下面的命令显示内核对它做了什么：",
     "Plug the cable in. If no serial device shows up then, this shows what the kernel made "
     "of it:"},
    {"对讲机测试：%1（9600,n,8,1，发送一次“S”请求）",
     "Radio test on %1 (9600,n,8,1, one \"S\" request):"},
    {"串口打不开：%1", "the port did not open: %1"},
    {"对讲机已应答，设置记录 %1", "a radio answered; settings record %1"},
    {"没有应答，线路上没有收到任何字节。", "no answer; not a byte came back."},
    {"没有应答，收到的字节不是对讲机的应答。",
     "no answer; bytes came back, but not the radio's answer."},
    {"串口在测试中失效：%1", "the port failed during the test: %1"},
    {"收到：", "received:"},
    {"可能的原因（最可能的在前）：", "Likely causes, most likely first:"},
    {"串口打不开：见上面对此设备的检查结果。", "The port does not open: see its report above."},
    {"对讲机没有开机，或没有进入写频状态。", "The radio is off, or not ready to be programmed."},
    {"串口线插头没有完全插入对讲机的插孔：用力插到底。",
     "The cable's plug is not all the way into the radio's jack: push it in firmly."},
    {"这不是串口线所在的串口：试试其他串口，或用“寻找串口线”。",
     "This is not the cable's port: try the others, or let \"Find my cable\" tell."},
    {"另一个程序打开了此串口，取走了字节。",
     "Another program has the port open and takes the bytes."},
    {"brltty 占用了转换器。", "brltty has taken the adapter."},
    {"ModemManager 探测了串口，打乱了字节。",
     "ModemManager probed the port and garbled the bytes."},
    {"转换器的芯片是仿制品。", "The adapter's chip is a copy."},
    {"串口线是为别的对讲机接线的，或对讲机是别的型号。",
     "The cable is wired for another radio, or the radio is another model."},
    {"串口线检查", "Cable check"},
    {"串口线检查", "Cable check"},
    {"关闭", "Close"},
    {"测试对讲机", "Test the radio"},
    {"寻找串口线", "Find my cable"},
    {"请拔下串口线；如果还没有插上，请插上。",
     "Unplug the cable, or plug it in if it is not in yet."},
    {"串口线原来在 %1。请重新插上。", "The cable was on %1. Plug it in again."},
    {"串口线在 %1。", "The cable is on %1."},
    {"同时出现了多个串口：%1。请只插串口线后再试。",
     "Several ports appeared at once: %1. Leave only the cable plugged in and try again."},
};

static_assert(std::size(kDoctorTexts) == static_cast<std::size_t>(DoctorText::FinderAmbiguous) + 1,
              "one pair per DoctorText");

}  // namespace

QString doctorText(DoctorText id, UiLanguage language) {
    return lookUp(kDoctorTexts, static_cast<int>(id), language);
}

}  // namespace l10n
