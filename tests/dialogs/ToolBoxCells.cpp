// What each page of the tool box holds besides the section that all types share, for projects of
// four colour systems: line/first column-last column, kind, the field it edits, range or code,
// text.
#include "tests/dialogs/ToolBoxCells.h"

const std::vector<PageCells>& AllPageCells() {
  static const std::vector<PageCells> pages = {
      {1, 0, R"(2/0-0 label 領域色
3/0-0 label 上 境界色/枠幅
4/0-0 label 下 境界色/枠幅
5/0-0 label 左 境界色/枠幅
6/0-0 label 右 境界色/枠幅
7/0-0 label 消去色
3/5-5 spin Parm[24] 0..99
4/5-5 spin Parm[25] 0..99
5/5-5 spin Parm[26] 0..99
6/5-5 spin Parm[27] 0..99
2/1-1 colour Parm[4]
2/2-2 colour Parm[5]
3/1-1 colour Parm[8]
3/2-2 colour Parm[9]
4/1-1 colour Parm[12]
4/2-2 colour Parm[13]
5/1-1 colour Parm[16]
5/2-2 colour Parm[17]
6/1-1 colour Parm[20]
6/2-2 colour Parm[21]
7/1-1 colour Parm[29]
2/3-3 colour Parm[6]
2/4-4 colour Parm[7]
3/3-3 colour Parm[10]
3/4-4 colour Parm[11]
4/3-3 colour Parm[14]
4/4-4 colour Parm[15]
5/3-3 colour Parm[18]
5/4-4 colour Parm[19]
6/3-3 colour Parm[22]
6/4-4 colour Parm[23])"},
      {2, 0, R"(2/0-0 label 線種
3/0-0 label 線幅
4/0-0 label 表示色
5/0-0 label 消去色
6/0-0 label 表示位置
2/1-4 combo Parm[14]
3/1-1 spin Parm[15] 0..99
6/1-1 radio Parm[13]=0 中央
6/2-2 radio Parm[13]=1 上左
6/3-3 radio Parm[13]=2 下右
4/1-1 colour Parm[4]
4/2-2 colour Parm[5]
4/3-3 colour Parm[6]
4/4-4 colour Parm[7]
5/1-1 colour Parm[29])"},
      {3, 0, R"(2/0-0 label 線幅
3/0-0 label 境界色
4/0-0 label 領域色
6/0-0 label 消去色
7/0-0 label 表示位置
2/1-1 spin Parm[15] 0..99
7/1-1 radio Parm[13]=0 中央
7/2-2 radio Parm[13]=1 上左
7/3-3 radio Parm[13]=2 下右
5/1-3 check Parm[12] 塗りつぶし
3/1-1 colour Parm[4]
3/2-2 colour Parm[5]
3/3-3 colour Parm[6]
3/4-4 colour Parm[7]
4/1-1 colour Parm[8]
4/2-2 colour Parm[9]
4/3-3 colour Parm[10]
4/4-4 colour Parm[11]
6/1-1 colour Parm[29])"},
      {4, 0, R"(2/0-0 label 線幅
3/0-0 label 境界色
4/0-0 label 領域色
6/0-0 label 消去色
7/0-0 label 表示位置
2/1-1 spin Parm[15] 0..99
7/1-1 radio Parm[13]=0 中央
7/2-2 radio Parm[13]=1 上左
7/3-3 radio Parm[13]=2 下右
5/1-3 check Parm[12] 塗りつぶし
3/1-1 colour Parm[4]
3/2-2 colour Parm[5]
3/3-3 colour Parm[6]
3/4-4 colour Parm[7]
4/1-1 colour Parm[8]
4/2-2 colour Parm[9]
4/3-3 colour Parm[10]
4/4-4 colour Parm[11]
6/1-1 colour Parm[29])"},
      {5, 0, R"(2/0-0 label 表示方向
3/0-0 label 表示色
4/0-0 label 背景色
5/0-0 label 外形色
6/0-0 label 消去色
7/0-0 label 線幅/枠幅
8/0-0 label 下限値/上限値
7/1-1 spin Parm[14] 0..99
7/2-2 spin Parm[15] 0..99
8/1-1 spin Parm[16] 0..9999
8/2-2 spin Parm[17] 0..9999
2/1-1 radio Parm[13]=0 縱
2/2-2 radio Parm[13]=1 横
3/1-1 colour Parm[4]
3/2-2 colour Parm[5]
3/3-3 colour Parm[6]
3/4-4 colour Parm[7]
4/1-1 colour Parm[8]
4/2-2 colour Parm[9]
4/3-3 colour Parm[10]
4/4-4 colour Parm[11]
5/1-1 colour Parm[12]
6/1-1 colour Parm[29])"},
      {6, 0, R"(1/0-0 label 文字列
2/0-0 label フォント
3/0-0 label 前景色
4/0-0 label 背景色
6/0-0 label 消去色
1/1-3 entry Text1
2/1-4 combo Parm[15]
5/1-2 check Parm[12] 背景色有効
5/3-4 check Parm[13] 点滅
3/1-1 colour Parm[4]
3/2-2 colour Parm[5]
3/3-3 colour Parm[6]
3/4-4 colour Parm[7]
4/1-1 colour Parm[8]
4/2-2 colour Parm[9]
4/3-3 colour Parm[10]
4/4-4 colour Parm[11]
6/1-1 colour Parm[29]
1/4-4 button 参照)"},
      {6, 1, R"(1/0-0 label 文字列
2/0-0 label フォント１
3/0-0 label フォント２
4/0-0 label 前景色
5/0-0 label 背景色
7/0-0 label 消去色
1/1-3 entry Text1
2/1-3 entry Text2
3/1-4 combo Parm[15]
6/1-2 check Parm[12] 背景色有効
6/3-4 check Parm[13] 点滅
4/1-1 colour Parm[4]
4/2-2 colour Parm[5]
4/3-3 colour Parm[6]
4/4-4 colour Parm[7]
5/1-1 colour Parm[8]
5/2-2 colour Parm[9]
5/3-3 colour Parm[10]
5/4-4 colour Parm[11]
7/1-1 colour Parm[29]
1/5-5 button 参照)"},
      {6, 2, R"(1/0-0 label 文字列
2/0-0 label フォント１
3/0-0 label フォント２
4/0-0 label フォント３
5/0-0 label 前景色
6/0-0 label 背景色
8/0-0 label 消去色
1/1-3 entry Text1
2/1-3 entry Text2
3/1-3 entry Text3
4/1-4 combo Parm[15]
7/1-2 check Parm[12] 背景色有効
7/3-4 check Parm[13] 点滅
5/1-1 colour Parm[4]
5/2-2 colour Parm[5]
5/3-3 colour Parm[6]
5/4-4 colour Parm[7]
6/1-1 colour Parm[8]
6/2-2 colour Parm[9]
6/3-3 colour Parm[10]
6/4-4 colour Parm[11]
8/1-1 colour Parm[29]
1/6-6 button 参照)"},
      {7, 0, R"(1/0-0 label 文字数
2/0-0 label フォント
3/0-0 label 前景色
4/0-0 label 背景色
6/0-0 label 消去色
9/0-0 label カーソル
1/1-1 spin Parm[16] 0..99
2/1-4 combo Parm[15]
5/1-2 check Parm[12] 背景色有効
5/3-4 check Parm[13] 点滅
7/1-2 check Parm[18] 入力可
8/1-2 check Parm[19] 日本語入力
9/1-1 check CusrUp ↑
9/2-2 check CusrDown ↓
9/3-3 check CusrLeft ←
9/4-4 check CusrRight →
3/1-1 colour Parm[4]
3/2-2 colour Parm[5]
3/3-3 colour Parm[6]
3/4-4 colour Parm[7]
4/1-1 colour Parm[8]
4/2-2 colour Parm[9]
4/3-3 colour Parm[10]
4/4-4 colour Parm[11]
6/1-1 colour Parm[29])"},
      {8, 0, R"(1/0-0 label 表示桁数
2/0-0 label フォント
3/0-0 label 前景色
4/0-0 label 背景色
6/0-0 label 消去色
11/0-0 label カーソル
1/1-1 spin Parm[16] 0..99
1/2-2 spin Parm[17] 0..99
2/1-4 combo Parm[15]
5/1-2 check Parm[12] 背景色有効
5/3-4 check Parm[13] 点滅
7/1-2 check Parm[18] 入力可
8/1-2 check Parm[19] ゼロサプレスしない
9/1-2 check Parm[20] 桁区切り使用
10/1-2 check Parm[21] １６進数
11/1-1 check CusrUp ↑
11/2-2 check CusrDown ↓
11/3-3 check CusrLeft ←
11/4-4 check CusrRight →
3/1-1 colour Parm[4]
3/2-2 colour Parm[5]
3/3-3 colour Parm[6]
3/4-4 colour Parm[7]
4/1-1 colour Parm[8]
4/2-2 colour Parm[9]
4/3-3 colour Parm[10]
4/4-4 colour Parm[11]
6/1-1 colour Parm[29])"},
      {9, 0, R"(2/0-0 label ボタンの文字
3/0-0 label フォント
4/0-0 label ボタンの枠幅
5/0-0 label 左上/右下枠
6/0-0 label ボタンの表面
7/0-0 label ボタンの文字
8/0-0 label 消去色
9/0-0 label ボタン文字列
10/0-0 label ファンクションキー
2/1-3 entry Text1
4/1-1 spin Parm[16] 0..99
9/3-3 spin Parm[14] 0..99
3/1-4 combo Parm[15]
9/1-1 radio Parm[13]=0 中央
9/2-2 radio Parm[13]=1 指定
5/1-1 colour Parm[4]
5/2-2 colour Parm[5]
6/1-1 colour Parm[6]
7/1-1 colour Parm[7]
7/2-2 colour Parm[8]
8/1-1 colour Parm[29]
2/4-4 button 参照)"},
      {9, 1, R"(2/0-0 label ボタンの文字１
3/0-0 label ボタンの文字２
4/0-0 label フォント
5/0-0 label ボタンの枠幅
6/0-0 label 左上/右下枠
7/0-0 label ボタンの表面
8/0-0 label ボタンの文字
9/0-0 label 消去色
10/0-0 label ボタン文字列
11/0-0 label ファンクションキー
2/1-3 entry Text1
3/1-3 entry Text2
5/1-1 spin Parm[16] 0..99
10/3-3 spin Parm[14] 0..99
4/1-4 combo Parm[15]
10/1-1 radio Parm[13]=0 中央
10/2-2 radio Parm[13]=1 指定
6/1-1 colour Parm[4]
6/2-2 colour Parm[5]
7/1-1 colour Parm[6]
8/1-1 colour Parm[7]
8/2-2 colour Parm[8]
0/1-1 colour Parm[29]
2/5-5 button 参照)"},
      {9, 2, R"(2/0-0 label ボタンの文字１
3/0-0 label ボタンの文字２
4/0-0 label ボタンの文字３
5/0-0 label フォント
6/0-0 label ボタンの枠幅
7/0-0 label 左上/右下枠
8/0-0 label ボタンの表面
9/0-0 label ボタンの文字
10/0-0 label 消去色
11/0-0 label ボタン文字列
12/0-0 label ファンクションキー
2/1-3 entry Text1
3/1-3 entry Text2
4/1-3 entry Text3
6/1-1 spin Parm[16] 0..99
11/3-3 spin Parm[14] 0..99
5/1-4 combo Parm[15]
11/1-1 radio Parm[13]=0 中央
11/2-2 radio Parm[13]=1 指定
7/1-1 colour Parm[4]
7/2-2 colour Parm[5]
8/1-1 colour Parm[6]
9/1-1 colour Parm[7]
9/2-2 colour Parm[8]
10/1-1 colour Parm[29]
2/6-6 button 参照)"},
      {10, 0, R"(1/0-0 label ボタンの文字
2/0-0 label フォント
3/0-0 label 前景色
4/0-0 label 背景色
5/0-0 label 消去色
6/0-0 label 識別番号
1/1-3 entry Text1
6/1-1 spin Parm[27] 0..99
2/1-4 combo Parm[15]
4/3-4 check Parm[12] 背景色有効
3/1-1 colour Parm[4]
3/2-2 colour Parm[5]
4/1-1 colour Parm[6]
4/2-2 colour Parm[7]
5/1-1 colour Parm[29]
1/4-4 button 参照)"},
      {10, 1, R"(1/0-0 label ボタンの文字１
2/0-0 label ボタンの文字２
3/0-0 label フォント
4/0-0 label 前景色
5/0-0 label 背景色
6/0-0 label 消去色
7/0-0 label 識別番号
1/1-3 entry Text1
2/1-3 entry Text2
7/1-1 spin Parm[27] 0..99
3/1-4 combo Parm[15]
5/3-4 check Parm[12] 背景色有効
4/1-1 colour Parm[4]
4/2-2 colour Parm[5]
5/1-1 colour Parm[6]
5/2-2 colour Parm[7]
6/1-1 colour Parm[29]
1/5-5 button 参照)"},
      {10, 2, R"(1/0-0 label ボタンの文字１
2/0-0 label ボタンの文字２
3/0-0 label ボタンの文字３
4/0-0 label フォント
5/0-0 label 前景色
6/0-0 label 背景色
7/0-0 label 消去色
8/0-0 label 識別番号
1/1-3 entry Text1
2/1-3 entry Text2
3/1-3 entry Text3
8/1-1 spin Parm[27] 0..99
4/1-4 combo Parm[15]
6/3-4 check Parm[12] 背景色有効
5/1-1 colour Parm[4]
5/2-2 colour Parm[5]
6/1-1 colour Parm[6]
6/2-2 colour Parm[7]
7/1-1 colour Parm[29]
1/6-6 button 参照)"},
      {11, 0, R"(1/0-0 label ボタンの文字
2/0-0 label フォント
3/0-0 label 前景色
4/0-0 label 背景色
5/0-0 label 消去色
1/1-3 entry Text1
2/1-4 combo Parm[15]
4/3-4 check Parm[12] 背景色有効
3/1-1 colour Parm[4]
3/2-2 colour Parm[5]
4/1-1 colour Parm[6]
4/2-2 colour Parm[7]
5/1-1 colour Parm[29]
1/4-4 button 参照)"},
      {11, 1, R"(1/0-0 label ボタンの文字１
2/0-0 label ボタンの文字２
3/0-0 label フォント
4/0-0 label 前景色
5/0-0 label 背景色
6/0-0 label 消去色
1/1-3 entry Text1
2/1-3 entry Text2
3/1-4 combo Parm[15]
5/3-4 check Parm[12] 背景色有効
4/1-1 colour Parm[4]
4/2-2 colour Parm[5]
5/1-1 colour Parm[6]
5/2-2 colour Parm[7]
6/1-1 colour Parm[29]
1/5-5 button 参照)"},
      {11, 2, R"(1/0-0 label ボタンの文字１
2/0-0 label ボタンの文字２
3/0-0 label ボタンの文字３
4/0-0 label フォント
5/0-0 label 前景色
6/0-0 label 背景色
7/0-0 label 消去色
1/1-3 entry Text1
2/1-3 entry Text2
3/1-3 entry Text3
4/1-4 combo Parm[15]
6/3-4 check Parm[12] 背景色有効
5/1-1 colour Parm[4]
5/2-2 colour Parm[5]
6/1-1 colour Parm[6]
6/2-2 colour Parm[7]
7/1-1 colour Parm[29]
1/6-6 button 参照)"},
      {12, 0, R"(2/0-0 label ビットマップ名
3/0-0 label 透過色
4/0-0 label 消去色
2/1-3 entry Text1 read-only
3/2-2 check Parm[5] 有効
3/1-1 colour Parm[4]
4/1-1 colour Parm[29]
2/4-4 button 参照)"},
      {13, 0, R"(2/0-0 label マーク
3/0-0 label 前景色
4/0-0 label 背景色
6/0-0 label 消去色
5/1-2 check Parm[12] 背景色有効
5/3-4 check Parm[13] 点滅
3/1-1 colour Parm[4]
3/2-2 colour Parm[5]
3/3-3 colour Parm[6]
3/4-4 colour Parm[7]
4/1-1 colour Parm[8]
4/2-2 colour Parm[9]
4/3-3 colour Parm[10]
4/4-4 colour Parm[11]
6/1-1 colour Parm[29]
2/1-1 mark Parm[15]
2/2-2 mark Parm[16]
2/3-3 mark Parm[17]
2/4-4 mark Parm[18])"},
      {14, 0, R"(2/0-0 label 表示方向
3/0-0 label ボタン
4/0-0 label 左上/右下枠
5/0-0 label 内部
6/0-0 label 消去色
7/0-0 label 枠幅
8/0-0 label 表示/データ量
9/0-0 label 移動量
10/0-0 label マウスホィール
11/0-0 label ファンクションキー
7/1-1 spin Parm[15] 0..99
8/1-1 spin Parm[16] 0..9999
8/2-2 spin Parm[17] 0..9999
9/1-1 spin Parm[18] 0..9999
9/2-2 spin Parm[19] 0..9999
9/3-3 spin Parm[20] 0..9999
2/1-2 radio Parm[13]=0 水平方向
2/3-4 radio Parm[13]=1 垂直方向
3/1-2 check Parm[8] シングル
3/3-4 check Parm[9] ダブル
10/1-2 check Parm[26] 使用可
11/1-2 check Parm[27] 使用可
4/1-1 colour Parm[4]
4/2-2 colour Parm[5]
5/1-1 colour Parm[6]
5/2-2 colour Parm[7]
6/1-1 colour Parm[29])"},
      {15, 0, R"(2/0-0 label 消去色
3/0-0 label 下限/上限値
3/1-1 spin Parm[16] 0..9999
3/2-2 spin Parm[17] 0..9999
2/1-1 colour Parm[29])"},
  };
  return pages;
}
