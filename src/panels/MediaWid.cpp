#include "panels/MediaWid.h"

MediaWid::MediaWid(QWidget *parent) : QWidget(parent) {}

void MediaWid::clearChecked() {}

void MediaWid::slotVantrixKeySelected(vantrix_key_mapping) {}
