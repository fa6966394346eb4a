#include "src/host/MountedMedia.h"

#include <gtest/gtest.h>

#include "src/host/DriveLetters.h"

namespace kalyxo {
namespace {

using platform::DriveType;
using Media = std::vector<MountedMedium>;

const RemovableTexts removable = {
    {"sda", "0\n"}, {"sdb", "1\n"}, {"sd", "1\n"}, {"nvme0n1", "0\n"}, {"loop0", "0\n"}};

struct MountCase {
    const char* line;
    Media media;
};

TEST(MountedMedia, EachKindHasItsType) {
    const MountCase cases[] = {
        {"/dev/sr0 /media/cdrom0 iso9660 ro 0 0", {{"/media/cdrom0", DriveType::cdrom}}},
        {"/dev/sr1 /media/x hfsplus ro 0 0", {{"/media/x", DriveType::cdrom}}},
        {"/dev/loop0 /home/x/disc udf ro 0 0", {{"/home/x/disc", DriveType::cdrom}}},
        {"/dev/sdb1 /media/eleni/STICK vfat rw 0 0", {{"/media/eleni/STICK", DriveType::removable}}},
        {"/dev/sdb /stick ext4 rw 0 0", {{"/stick", DriveType::removable}}},
        {"/dev/mmcblk0p1 /run/media/eleni/CARD exfat rw 0 0",
         {{"/run/media/eleni/CARD", DriveType::removable}}},
        {"/dev/sda10 /mnt/old fuseblk rw 0 0", {{"/mnt/old", DriveType::fixed}}},
        {"/dev/mapper/luks-1 /media/eleni/safe ext4 rw 0 0", {{"/media/eleni/safe", DriveType::fixed}}},
        {"server:/school /school nfs4 rw 0 0", {{"/school", DriveType::remote}}},
        {"//server/share /mnt/share cifs rw 0 0", {{"/mnt/share", DriveType::remote}}},
        {"eleni@server: /home/eleni/far fuse.sshfs rw 0 0", {{"/home/eleni/far", DriveType::remote}}},
        {"tmpfs /mnt/quick tmpfs rw 0 0", {{"/mnt/quick", DriveType::ramdisk}}},
        {"/dev/sdb1 /media/a\\040b\\134c\\011\\316\\246 vfat rw",
         {{"/media/a b\\c\t\xCE\xA6", DriveType::removable}}},
        {"/dev/sdb1 /media/end\\04 vfat", {{"/media/end\\04", DriveType::removable}}},
        // The host's own.
        {"/dev/nvme0n1p2 / ext4 rw 0 0", {}},
        {"server:/root / nfs rw 0 0", {}},
        {"/dev/sdb1 /boot/efi vfat rw 0 0", {}},
        {"/dev/sda2 /home ext4 rw 0 0", {}},
        {"/dev/sdaa1 /home ext4 rw 0 0", {}},
        {"tmpfs /run/user/1000 tmpfs rw 0 0", {}},
        {"tmpfs /tmp tmpfs rw 0 0", {}},
        {"/dev/loop0 /snap/core squashfs ro 0 0", {}},
        {"systemd-1 /mnt/later autofs rw 0 0", {}},
        {"/dev/sda1 /mediation ext4 rw 0 0", {}},
        {"damaged", {}},
        {"", {}},
    };
    for (const MountCase& each : cases) {
        EXPECT_EQ(ReadMountedMedia(each.line, removable), each.media) << each.line;
    }
}

TEST(MountedMedia, SortedAndTheLastOfAFolderCounts) {
    const char* mounts =
        "server:/b /mnt/b nfs rw 0 0\n"
        "/dev/sr0 /mnt/a iso9660 ro 0 0\n"
        "systemd-1 /mnt/c autofs rw 0 0\n"
        "/dev/sr0 /mnt/d iso9660 ro 0 0\n"
        "server:/c /mnt/c nfs rw 0 0\n"
        "overlay /mnt/d overlay rw 0 0";
    EXPECT_EQ(
        ReadMountedMedia(mounts, {}),
        (Media{{"/mnt/a", DriveType::cdrom}, {"/mnt/b", DriveType::remote}, {"/mnt/c", DriveType::remote}}));
}

/// The letters of media among the drives C:, D: and Z:, as on the user's own machine.
class DriveLetters : public testing::Test {
  protected:
    /// One start of the program: the letters, in the order of the media, '-' for none.
    std::string start(const Media& media) {
        platform::MachineConfig config;
        config.drives['D'] = {DriveType::cdrom, "/usr/share/content"};
        config.drives['Z'] = {DriveType::fixed, "/"};
        RememberLetters(registry_, AddMediaDrives(config, RememberedLetters(registry_), media));
        std::string letters;
        for (const MountedMedium& medium : media) {
            char letter = '-';
            for (const auto& [at, drive] : config.drives) {
                if (drive == platform::DriveConfig{medium.type, medium.folder}) letter = at;
            }
            letters += letter;
        }
        return letters;
    }

    platform::Registry registry_;
};

TEST_F(DriveLetters, StayWhileOthersComeAndGo) {
    const MountedMedium disc{"/media/cdrom", DriveType::cdrom};
    const MountedMedium stick{"/media/Χημεία 1", DriveType::removable};
    const MountedMedium net{"/mnt/net", DriveType::remote};
    EXPECT_EQ(start({disc, net}), "EF");
    EXPECT_EQ(start({stick, net}), "GF");
    EXPECT_EQ(start({disc, stick, net}), "EGF");
    EXPECT_EQ(start({}), "");
    EXPECT_EQ(start({net}), "F");
}

TEST_F(DriveLetters, NoMoreThanAreFree) {
    Media media;
    for (int i = 10; i < 35; ++i) media.push_back({"/mnt/" + std::to_string(i), DriveType::remote});
    EXPECT_EQ(start(media), "EFGHIJKLMNOPQRSTUVWXY----");
    // With every letter remembered, a newcomer takes the one of a medium that is not there.
    EXPECT_EQ(start({{"/mnt/11", DriveType::remote}, {"/mnt/34", DriveType::remote}}), "FE");
    EXPECT_EQ(start({{"/mnt/34", DriveType::remote}}), "E");
}

TEST_F(DriveLetters, AFolderThatIsADriveGetsNoSecondOne) {
    EXPECT_EQ(start({{"/usr/share/content", DriveType::cdrom}, {"/mnt/a", DriveType::remote}}), "DE");
}

}  // namespace
}  // namespace kalyxo
