#pragma once

// The records of the service, field by field in their order: how the panel reads them from a
// profile and how the panel and the recorder write them.

#include "Trace.h"
#include "service/IAvManagerCtrl.h"
#include "service/IBurnKeyCtrl.h"
#include "service/IBurnMacCtrl.h"
#include "service/ICameraCtrl.h"
#include "service/IFwTouchCtrl.h"
#include "service/IFwUpgrade.h"
#include "service/IPQCtrl.h"
#include "service/ISoundScreenAngleCtrl.h"
#include "service/ITouchCtrl.h"

SIM_RECORD(android::AvSignalFormat, width, height, refresh, interlaced, ycbcr, fullrange,
           subsampling, colorspace, depth, hdr, audio, channels, fidelity, samples, drm, dsc);
SIM_RECORD(android::EntitySwKey, KeyType, CurrentValue, CurrentVersion, IsSupportUsbBurn,
           UsbBurnKeyBinName, NeedRebootWhenBurned);
SIM_RECORD(android::EntitySwMac, KeyType, CurrentVersion, IsSupportUsbBurn, UsbBurnKeyBinName,
           NeedRebootWhenBurned);
SIM_RECORD(android::BrelCameraInfo, info_text, value_a, value_b);
SIM_RECORD(android::EntityFwTouch, touchModel, touchType, fwTouchType, touchCurrentVersion,
           isSupportUsbUpgrade, usbUpgradeTouchBinName, isSupportOtaUpgrade,
           otaUpgradeTouchBinPath, otaTouchBasicBinVersion, otaTouchKey, needRebootWhenUpgraded);
SIM_RECORD(android::EntityFwTouchDriver, touchModel, touchType, swTouchDriverType,
           touchDriverCurrentVersion, isSupportUsbUpgrade, usbUpgradeTouchDriverBinName);
SIM_RECORD(android::EntityFwInfoMcu, mcuType, fwMcuType, mcuCurrentVersion, isSupportUsbUpgrade,
           usbUpgradeMcuBinName, isSupportOtaUpgrade, otaUpgradeMcuBinPath, otaMcuBasicBinVersion,
           otaMcuKey, needRebootWhenUpgraded);
SIM_RECORD(android::PresetColorTempRgb, r, g, b);
SIM_RECORD(android::SoundScreenAngle, start_angle, end_angle);
SIM_RECORD(android::TouchPoint, point_id, point_x, point_y);
SIM_RECORD(android::TouchRect, rect_id, rect_p1, rect_p2);
